#!/usr/bin/env python3
"""Makes the Debian packages, unpacks them into a fresh root, and does there what their users do."""

import argparse
import gzip
import os
import re
import shutil
import subprocess
import sys
from pathlib import Path

LIBRARIES = ["LmSdpObject", "LmUtil", "harnwick-core", "harnwick-srtp"]

arguments = argparse.ArgumentParser()
for name in ["build", "work", "consumer"]:
    arguments.add_argument(f"--{name}", type=Path, required=True)
arguments.add_argument("--version", required=True)
arguments.add_argument("--cxx", required=True)
args = arguments.parse_args()

version, major = args.version, args.version.split(".")[0]
RUNTIME = f"liblmsdpobject{major}"

# Of each package: what its Depends must name, and files that it must have. A file ends with what a link points to.
PACKAGES = {
    RUNTIME: (
        [r"liblog4cplus-2\S*", r"libace-7\S*", "libc6", r"libstdc\+\+6"],
        [f"lib/lib{lib}.so.{version}" for lib in LIBRARIES]
        + [f"lib/lib{lib}.so.{major} -> lib{lib}.so.{version}" for lib in LIBRARIES],
    ),
    "liblmsdpobject-dev": (
        [rf"{RUNTIME} \(= {re.escape(version)}\)", "liblog4cplus-dev", "libace-dev"],
        [f"lib/lib{lib}.so -> lib{lib}.so.{major}" for lib in LIBRARIES]
        + [
            "include/LmSdpObject/LmSdpObject.h",
            "include/LmSdpObject/LmLibs/LmUtil/LmHandle.h",
            "include/LmSdpObject/core/Logger.h",
            "include/LmSdpObject/sdp/frame/LmSdpMsg.h",
            "lib/cmake/LmSdpObject/LmSdpObjectConfig.cmake",
            "lib/cmake/LmSdpObject/LmSdpObjectConfigVersion.cmake",
            "lib/cmake/LmSdpObject/LmSdpObject-shared.cmake",
            "lib/cmake/LmSdpObject/FindACE.cmake",
            "lib/pkgconfig/LmSdpObject.pc",
        ],
    ),
    "lmsdp": (
        [rf"{RUNTIME} \(= {re.escape(version)}\)", "libc6"],
        ["bin/lmsdp", "share/man/man1/lmsdp.1.gz", "share/bash-completion/completions/lmsdp"],
    ),
    "liblmsdpobject-doc": (
        [],
        [
            "share/doc/LmSdpObject/README.md",
            "share/doc/LmSdpObject/docs/README.md",
            "share/doc/LmSdpObject/docs/errors.md",
            "share/doc/LmSdpObject/docs/object-model.svg",
            "share/doc/LmSdpObject/docs/logging.properties",
            "share/doc/LmSdpObject/examples/own_line_letter.cpp",
        ],
    ),
}

faults = []


def expect(condition, words):
    if not condition:
        faults.append(words)


def output_of(*command, **options):
    print("$", *command, flush=True)
    return subprocess.run([str(word) for word in command], check=True, stdout=subprocess.PIPE, text=True,
                          **options).stdout


def contents(tree):
    """The paths of all files and links below a package's usr."""
    usr = tree / "usr"
    for path in usr.rglob("*"):
        name = str(path.relative_to(usr))
        if path.is_symlink():
            yield f"{name} -> {os.readlink(path)}"
        elif not path.is_dir():
            yield name


def check_package(name, deb, tree):
    depends, files = PACKAGES[name]
    field = {key: output_of("dpkg-deb", "-f", deb, key).strip() for key in ["Depends", "Version", "Maintainer"]}
    named = field["Depends"].split(", ")
    for wanted in depends:
        expect(any(re.fullmatch(rf"{wanted}( \(.*\))?", one) for one in named), f"{name} depends on {named}: {wanted}?")
    expect(field["Version"] == version, f"{name} has the version {field['Version']}")
    expect("@" in field["Maintainer"], f"{name} has no maintainer")

    found = set(contents(tree))
    for wanted in files + [f"share/doc/{name}/copyright", f"share/doc/{name}/changelog.gz"]:
        expect(wanted in found, f"{name} has no {wanted}")
    return {path.split(" -> ")[0] for path in found}


def check_root(usr):
    for lib in LIBRARIES:
        dynamic = output_of("readelf", "-d", usr / f"lib/lib{lib}.so")
        expect(f"Library soname: [lib{lib}.so.{major}]" in dynamic, f"lib{lib} has another soname")
    expect(output_of(usr / "bin/lmsdp", "--version") == f"lmsdp {version}\n", "lmsdp tells another version")
    with gzip.open(usr / "share/man/man1/lmsdp.1.gz", "rt") as manual:
        expect(manual.readline().startswith(".TH LMSDP 1"), "lmsdp.1.gz is no manual page")
    completion = usr / "share/bash-completion/completions/lmsdp"
    expect(output_of("bash", "-c", '. "$1" && complete -p lmsdp', "-", completion), "nothing completes lmsdp")


def build_consumers(usr):
    environment = {**os.environ, "LD_LIBRARY_PATH": str(usr / "lib"), "PKG_CONFIG_PATH": str(usr / "lib/pkgconfig")}

    build = args.work / "find_package"
    output_of("cmake", "-S", args.consumer, "-B", build, "-G", "Ninja", f"-DCMAKE_CXX_COMPILER={args.cxx}",
              f"-DCMAKE_PREFIX_PATH={usr}")
    output_of("cmake", "--build", build)

    program = args.work / "pkg_config"
    flags = output_of("pkg-config", "--cflags", "--libs", "LmSdpObject", env=environment).split()
    expect(f"-I{usr}/lib/pkgconfig/../../include/LmSdpObject" in flags, f"pkg-config found another tree: {flags}")
    output_of(args.cxx, "-std=c++17", args.consumer / "main.cpp", "-o", program, *flags)

    for consumer in [build / "consumer", program]:
        libraries = output_of("ldd", consumer, env=environment)
        expect(f"=> {usr}/lib/libLmSdpObject.so.{major} " in libraries, f"{consumer} takes others:\n{libraries}")
        printed = output_of(consumer, env=environment)
        expect(printed == "Weekly call\n", f"{consumer} printed {printed!r}")


def main():
    missing = [tool for tool in ["dpkg-deb", "dpkg-shlibdeps", "file"] if shutil.which(tool) is None]
    if missing:
        print("no Debian packages without", *missing)
        return 77
    shutil.rmtree(args.work, ignore_errors=True)
    output_of("cpack", "--config", args.build / "CPackConfig.cmake", "-B", args.work / "cpack")
    debs = {deb.name.split("_")[0]: deb for deb in args.work.glob("cpack/*.deb")}
    expect(set(debs) == set(PACKAGES), f"these packages were made: {sorted(debs)}")

    owners = {}
    (args.work / "unpacked").mkdir()
    for name in sorted(set(debs) & set(PACKAGES)):
        tree = args.work / "unpacked" / name
        output_of("dpkg-deb", "-x", debs[name], tree)
        for path in check_package(name, debs[name], tree):
            expect(path not in owners, f"{path} is in {name} and in {owners.get(path)}")
            owners[path] = name
        output_of("dpkg-deb", "-x", debs[name], args.work / "root")
    if not faults:
        check_root(args.work / "root/usr")
        build_consumers(args.work / "root/usr")

    print(*faults, sep="\n")
    return 1 if faults else 0


sys.exit(main())
