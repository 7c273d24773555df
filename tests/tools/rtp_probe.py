#!/usr/bin/env python3
"""Lets ffprobe read a body of `lmsdp offer`, and the RTP that ffmpeg sends to it: rtp_probe.py LMSDP"""

import json
import re
import shutil
import socket
import subprocess
import sys
import tempfile

SKIPPED = 77
PACKETS = 5


def is_free(port):
    with socket.socket(socket.AF_INET, socket.SOCK_DGRAM) as udp:
        try:
            udp.bind(("0.0.0.0", port))
        except OSError:
            return False
    return True


def free_even_port():
    """A port for RTP with the next one free as well, for RTCP."""
    while True:
        with socket.socket(socket.AF_INET, socket.SOCK_DGRAM) as udp:
            udp.bind(("0.0.0.0", 0))
            port = udp.getsockname()[1] & ~1
        if is_free(port) and port < 65534 and is_free(port + 1):
            return port


def probe(body, address, port):
    """What ffprobe says of the streams and of the first packets that come in."""
    with tempfile.NamedTemporaryFile(suffix=".sdp") as file:
        file.write(body)
        file.flush()
        sender = subprocess.Popen(
            ["ffmpeg", "-v", "error", "-nostdin", "-re", "-f", "lavfi", "-i", "sine=frequency=440:sample_rate=8000",
             "-t", "50", "-c:a", "pcm_mulaw", "-ac", "1", "-f", "rtp", f"rtp://{address}:{port}"],
            stdout=subprocess.DEVNULL)
        try:
            found = subprocess.run(
                ["ffprobe", "-v", "error", "-protocol_whitelist", "file,udp,rtp", "-print_format", "json",
                 "-show_streams", "-show_packets", "-read_intervals", f"%+#{PACKETS}", file.name],
                stdout=subprocess.PIPE, timeout=40, check=True)
        finally:
            sender.terminate()
            sender.wait(timeout=10)
    return json.loads(found.stdout)


def main():
    if shutil.which("ffmpeg") is None or shutil.which("ffprobe") is None:
        print("skipped: ffmpeg is not installed (Debian package ffmpeg)")
        return SKIPPED
    port = free_even_port()
    body = subprocess.run([sys.argv[1], "offer", "--audio", str(port), "--codec", "0:PCMU"], stdout=subprocess.PIPE,
                          check=True).stdout
    address = re.search(rb"\r\nc=IN IP4 (\S+)\r\n", body).group(1).decode()
    found = probe(body, address, port)
    streams = [(s["codec_type"], s["codec_name"], s["sample_rate"], s["channels"]) for s in found["streams"]]
    packets = len(found["packets"])
    print(f"{streams}, {packets} packets on {address} port {port}")
    return 0 if streams == [("audio", "pcm_mulaw", "8000", 1)] and packets == PACKETS else 1


if __name__ == "__main__":
    sys.exit(main())
