#include "Commands.h"
#include "OfferOptions.h"
#include "Report.h"

#include <CLI/CLI.hpp>

#include <iostream>

namespace
{

using lmsdp::Keys;

CLI::Option* addFiles(CLI::App& command, std::vector<std::string>& files)
{
    return command.add_option("FILE", files, "bodies to read; - or nothing is standard input");
}

void addJson(CLI::App& command, bool& json)
{
    command.add_flag("--json", json, "write one JSON document instead of text");
}

void addShowKeys(CLI::App& command, Keys& keys)
{
    command.add_flag_callback(
        "--show-keys", [&keys] { keys = Keys::shown; }, "show key texts in full, not their first four characters");
}

std::string usageMessage(const CLI::App*, const CLI::Error& error)
{
    return "lmsdp: " + lmsdp::printable(error.what()) + "\nRun lmsdp with --help for more information.\n";
}

/// The exit status for a command line that was not understood, or that asked for help.
int exitStatusFor(const CLI::ParseError& error, CLI::App& app)
{
    if (app.get_subcommands().empty() && !app.remaining().empty())
    {
        const CLI::ExtrasError unknown("there is no command " + app.remaining().front(), CLI::ExitCodes::ExtrasError);
        return app.exit(unknown) == 0 ? lmsdp::exitClean : lmsdp::exitUsage;
    }
    return app.exit(error) == 0 ? lmsdp::exitClean : lmsdp::exitUsage;
}

int run(int argc, char** argv)
{
    CLI::App app("Looks into SDP bodies.", "lmsdp");
    app.set_version_flag("--version", "lmsdp " LMSDP_VERSION, "print the version and exit");
    app.set_help_flag("-h,--help", "print this help and exit");
    app.failure_message(&usageMessage);
    app.require_subcommand(1);
    int status = lmsdp::exitClean;

    lmsdp::ShowOptions showOptions;
    CLI::App& show = *app.add_subcommand("show", "print the tree of lines with their members");
    addFiles(show, showOptions.files);
    addJson(show, showOptions.json);
    addShowKeys(show, showOptions.keys);
    show.callback([&] { status = lmsdp::show(showOptions); });

    std::vector<std::string> normalizeFiles;
    Keys normalizeKeys = Keys::withheld;
    CLI::App& normalize = *app.add_subcommand("normalize", "print the text as the library writes it");
    addFiles(normalize, normalizeFiles);
    addShowKeys(normalize, normalizeKeys);
    normalize.callback([&] { status = lmsdp::normalize(normalizeFiles, normalizeKeys); });

    lmsdp::StreamsOptions streamsOptions;
    CLI::App& streams = *app.add_subcommand("streams", "print the streams that a received body offers");
    streams.add_option("FILE", streamsOptions.file, "body to read; - or nothing is standard input");
    addJson(streams, streamsOptions.json);
    addShowKeys(streams, streamsOptions.keys);
    streams.callback([&] { status = lmsdp::streams(streamsOptions); });

    bool offerJson = false;
    CLI::App& offer = *app.add_subcommand("offer", "print a local body for the streams named");
    lmsdp::addStreamOptions(offer);
    addJson(offer, offerJson);
    offer.callback([&] { status = lmsdp::offer({lmsdp::streamsOf(offer), offerJson}); });

    lmsdp::CheckOptions checkOptions;
    CLI::App& check = *app.add_subcommand("check", "tell what is refused, lost or changed");
    check.add_option("PATH", checkOptions.files, "bodies, or directories with *.sdp; - or nothing is standard input");
    addJson(check, checkOptions.json);
    addShowKeys(check, checkOptions.keys);
    check.add_flag("--strict", checkOptions.strict, "exit with 1 for notes as well");
    check.callback([&] { status = lmsdp::check(checkOptions); });

    try
    {
        app.parse(argc, argv);
    }
    catch (const CLI::ParseError& error)
    {
        return exitStatusFor(error, app);
    }
    if (!std::cout.flush())
    {
        std::cerr << "lmsdp: standard output cannot be written\n";
        return lmsdp::exitUsage;
    }
    return status;
}

} // namespace

int main(int argc, char** argv)
{
    std::ios::sync_with_stdio(false);
    try
    {
        return run(argc, argv);
    }
    catch (const std::exception& exception)
    {
        std::cerr << "lmsdp: " << exception.what() << '\n';
        return lmsdp::exitUsage;
    }
}
