#include "Commands.h"
#include "Findings.h"
#include "Report.h"
#include "Terminal.h"

#include <algorithm>
#include <filesystem>
#include <iostream>

namespace lmsdp
{
namespace
{

namespace fs = std::filesystem;

struct Summary
{
    std::size_t bodies = 0;
    std::size_t clean = 0;
    std::size_t errors = 0;
    std::size_t notes = 0;
    std::size_t unreadable = 0;

    void count(const std::vector<Finding>& findings)
    {
        ++bodies;
        clean += findings.empty() ? 1 : 0;
        for (const Finding& finding : findings)
        {
            ++(finding.severity == Severity::error ? errors : notes);
        }
    }

    int exitStatus(bool strict) const
    {
        return unreadable != 0 ? exitUsage : errors != 0 || (strict && notes != 0) ? exitRefused : exitClean;
    }
};

const char* nameOf(Severity severity)
{
    return severity == Severity::error ? "error" : "note";
}

/// What the command writes for what it finds.
class Output
{
public:
    virtual ~Output() = default;
    virtual void body(const Body& body, const std::vector<Finding>& findings) = 0;
    virtual void end(const Summary& summary) = 0;
};

class TextOutput : public Output
{
public:
    TextOutput(Keys keys, bool summaryWanted) : m_Keys(keys), m_SummaryWanted(summaryWanted), m_Colour(wantsColour()) {}

    void body(const Body& body, const std::vector<Finding>& findings) override
    {
        for (const Finding& finding : findings)
        {
            print(body, finding);
        }
    }

    void end(const Summary& summary) override
    {
        if (m_SummaryWanted)
        {
            std::cout << "bodies: " << summary.bodies << ", clean: " << summary.clean << ", errors: " << summary.errors
                      << ", notes: " << summary.notes << '\n';
        }
    }

private:
    std::string coloured(const char* colour, const std::string& text) const
    {
        return m_Colour ? std::string("\x1B[") + colour + 'm' + text + "\x1B[0m" : text;
    }

    void print(const Body& body, const Finding& finding) const
    {
        const bool isError = finding.severity == Severity::error;
        const std::string place =
            printable(body.name) + ':' + std::to_string(finding.line) + ':' + std::to_string(finding.column) + ':';
        std::cout << coloured("1", place) << ' '
                  << coloured(isError ? "1;31" : "1;36", std::string(nameOf(finding.severity)) + ':') << ' '
                  << printable(finding.message) << '\n';
        const Excerpt shown = excerpt(finding.text, finding.column - 1, m_Keys);
        std::cout << "    " << shown.text << '\n'
                  << "    " << std::string(shown.caret, ' ') << coloured("1;32", "^") << '\n';
        if (!finding.written.empty())
        {
            std::cout << "    = written: \"" << excerpt(finding.written, finding.column - 1, m_Keys).text << "\"\n";
        }
        std::cout << "    = expected: " << finding.expected << '\n';
    }

    const Keys m_Keys;
    const bool m_SummaryWanted;
    const bool m_Colour;
};

class JsonOutput : public Output
{
public:
    explicit JsonOutput(Keys keys) : m_Keys(keys) {}

    void body(const Body& body, const std::vector<Finding>& findings) override
    {
        Json list = Json::array();
        for (const Finding& finding : findings)
        {
            list.push_back(jsonOf(finding));
        }
        m_Bodies.push_back({{"file", body.name}, {"findings", std::move(list)}});
    }

    void end(const Summary& summary) override
    {
        Json document = makeDocument("check", std::move(m_Bodies));
        document["summary"] = {
            {"bodies", summary.bodies}, {"clean", summary.clean}, {"errors", summary.errors}, {"notes", summary.notes}};
        std::cout << documentText(document);
    }

private:
    Json jsonOf(const Finding& finding) const
    {
        Json result{{"severity", nameOf(finding.severity)},
                    {"line", finding.line},
                    {"column", finding.column},
                    {"message", finding.message}};
        if (!finding.exceptionClass.empty())
        {
            result["class"] = finding.exceptionClass;
        }
        result["text"] = lineText(finding.text, m_Keys);
        if (!finding.written.empty())
        {
            result["written"] = lineText(finding.written, m_Keys);
        }
        result["expected"] = finding.expected;
        return result;
    }

    const Keys m_Keys;
    Json m_Bodies = Json::array();
};

bool isBodyFile(const fs::directory_entry& entry)
{
    std::error_code ignored;
    std::string extension = entry.path().extension().string();
    std::transform(extension.begin(), extension.end(), extension.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
    return extension == ".sdp" && entry.is_regular_file(ignored);
}

/// Appends the bodies below a directory, in the order of their names.
void walk(const std::string& directory, std::vector<std::string>& files, Summary& summary)
{
    std::vector<std::string> found;
    std::error_code error;
    fs::recursive_directory_iterator entry(directory, error);
    while (!error && entry != fs::recursive_directory_iterator())
    {
        if (isBodyFile(*entry))
        {
            found.push_back(entry->path().string());
        }
        entry.increment(error);
    }
    if (error)
    {
        report(InputError(directory + ": " + error.message()));
        ++summary.unreadable;
    }
    std::sort(found.begin(), found.end());
    files.insert(files.end(), found.begin(), found.end());
}

} // namespace

int check(const CheckOptions& options)
{
    Summary summary;
    std::vector<std::string> files;
    bool walked = false;
    for (const std::string& name : orStandardInput(options.files))
    {
        std::error_code ignored;
        if (name != "-" && fs::is_directory(name, ignored))
        {
            walked = true;
            walk(name, files, summary);
        }
        else
        {
            files.push_back(name);
        }
    }

    TextOutput text(options.keys, walked);
    JsonOutput json(options.keys);
    Output& output = options.json ? static_cast<Output&>(json) : text;
    ProgressBar bar(walked ? files.size() : 0);
    std::size_t done = 0;
    for (const std::string& file : files)
    {
        try
        {
            const Body body = readBody(file);
            const std::vector<Finding> findings = findingsOf(body);
            summary.count(findings);
            if (!findings.empty())
            {
                bar.hide();
            }
            output.body(body, findings);
        }
        catch (const InputError& error)
        {
            bar.hide();
            report(error);
            ++summary.unreadable;
        }
        ++done;
        if (walked)
        {
            bar.update(done);
        }
    }
    bar.hide();
    output.end(summary);
    return summary.exitStatus(options.strict);
}

} // namespace lmsdp
