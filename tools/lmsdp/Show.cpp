#include "Commands.h"
#include "Report.h"
#include "Tree.h"

#include <cctype>
#include <iostream>

namespace lmsdp
{
namespace
{

constexpr std::size_t s_NameWidth = 20;

/// The name of a member in words: "sessionId" gives "session id".
std::string inWords(const std::string& name)
{
    std::string words;
    for (const char c : name)
    {
        if (c >= 'A' && c <= 'Z')
        {
            words += ' ';
            words += static_cast<char>(c - 'A' + 'a');
        }
        else
        {
            words += c;
        }
    }
    return words;
}

std::string plain(const Json& value)
{
    if (!value.is_string())
    {
        return value.dump();
    }
    const auto& text = value.get_ref<const std::string&>();
    return text.empty() ? "(empty)" : printable(text);
}

/// The members of an element behind its first, which is its name: "AbCd…, lifetime 1048576, mki 1, mki length 4".
std::string inOneLine(const Json& members)
{
    std::string line;
    for (const auto& [name, value] : members.items())
    {
        line += line.empty() ? plain(value) : ", " + inWords(name) + ' ' + plain(value);
    }
    return line;
}

void printMember(const std::string& name, const std::string& value)
{
    std::string padded = inWords(name);
    padded.resize(std::max(padded.size() + 1, s_NameWidth), ' ');
    std::cout << "      " << padded << value << '\n';
}

/// A list takes one line when it is of words, and a line for each element when these have members.
void printMember(const std::string& name, const Json& value)
{
    if (!value.is_array())
    {
        printMember(name, plain(value));
    }
    else if (!value.empty() && value.front().is_object())
    {
        const std::string singular = name.substr(0, name.size() - 1);
        for (const Json& element : value)
        {
            printMember(singular, inOneLine(element));
        }
    }
    else if (!value.empty())
    {
        std::string words;
        for (const Json& element : value)
        {
            words += (words.empty() ? "" : " ") + plain(element);
        }
        printMember(name, words);
    }
}

class TreePrinter : public TreeVisitor
{
public:
    explicit TreePrinter(Keys keys) : m_Keys(keys) {}

    void group(const char* kind, std::size_t number) override
    {
        m_Heading = number == 0 ? "session" : std::string(kind) + " description " + std::to_string(number);
    }

    void line(LmSdpField& field) override
    {
        if (!m_Heading.empty())
        {
            std::cout << m_Heading << '\n';
            m_Heading.clear();
        }
        const Json line = lineOf(field, m_Keys);
        const bool writable = line["value"].is_string();
        std::cout << "  " << printable(line["letter"].get_ref<const std::string&>()) << '='
                  << (writable ? printable(line["value"].get_ref<const std::string&>())
                               : "(cannot be written: " + line["unwritable"].get<std::string>() + ")")
                  << '\n';
        if (line.contains("members"))
        {
            for (const auto& [name, value] : line["members"].items())
            {
                printMember(name, value);
            }
        }
    }

private:
    const Keys m_Keys;
    std::string m_Heading;
};

int showAsText(const ShowOptions& options)
{
    return forEachBody(options.files, [&options](const Body& body) -> int {
        if (options.files.size() > 1)
        {
            std::cout << "== " << printable(body.name) << '\n';
        }
        const Reading reading = read(body);
        if (reading.refusal)
        {
            report(body, refusalOf(body, reading), options.keys);
            return exitRefused;
        }
        TreePrinter printer(options.keys);
        visitTree(*reading.message, printer);
        return exitClean;
    });
}

int showAsJson(const ShowOptions& options)
{
    Json bodies = Json::array();
    const int status = forEachBody(options.files, [&](const Body& body) -> int {
        const Reading reading = read(body);
        Json result{{"file", body.name}};
        if (reading.refusal)
        {
            const Refusal refusal = refusalOf(body, reading);
            report(body, refusal, options.keys);
            result["error"] = jsonOf(refusal, options.keys);
        }
        else
        {
            result["tree"] = treeOf(*reading.message, options.keys);
        }
        bodies.push_back(std::move(result));
        return reading.refusal ? exitRefused : exitClean;
    });
    std::cout << documentText(makeDocument("show", std::move(bodies)));
    return status;
}

} // namespace

int show(const ShowOptions& options)
{
    return options.json ? showAsJson(options) : showAsText(options);
}

} // namespace lmsdp
