#include "Findings.h"

#include "Expectation.h"
#include "Lines.h"
#include "Order.h"

#include <algorithm>

namespace lmsdp
{
namespace
{

std::string counted(std::size_t number, const char* thing)
{
    return std::to_string(number) + ' ' + thing + (number == 1 ? "" : "s");
}

std::string changeInWords(const std::string& written)
{
    const auto breaks = static_cast<std::size_t>(std::count(written.begin(), written.end(), '\n'));
    return breaks == 0 ? "comes back changed" : "comes back as " + std::to_string(breaks + 1) + " lines";
}

/// Where two texts part.
std::size_t firstDifference(std::string_view left, std::string_view right)
{
    const auto [place, other] = std::mismatch(left.begin(), left.end(), right.begin(), right.end());
    return static_cast<std::size_t>(place - left.begin());
}

class Finder
{
public:
    explicit Finder(const Body& body)
        : m_Body(body), m_Lines(body.bytes), m_Reading(read(body)), m_Read(readLines(body, m_Reading))
    {
    }

    std::vector<Finding> run()
    {
        if (m_Reading.refusal)
        {
            findRefusal();
            return std::move(m_Findings);
        }
        findChanges();
        findMoves();
        findUnread();
        findLineEnds();
        findBlankLines();
        std::stable_sort(m_Findings.begin(), m_Findings.end(), [](const Finding& left, const Finding& right) {
            return left.line < right.line || (left.line == right.line && left.column < right.column);
        });
        return std::move(m_Findings);
    }

private:
    Finding& add(Severity severity, std::size_t offset, std::string message)
    {
        const std::size_t number = m_Lines.numberAt(offset);
        const std::size_t column = std::min(offset, m_Lines[number].end) - m_Lines[number].begin + 1;
        m_Findings.push_back(
            {severity, number, column, std::move(message), "", "", std::string(m_Lines.text(number)), ""});
        return m_Findings.back();
    }

    void addFailure(Severity severity, std::size_t offset, const Failure& failure, const char* prefix)
    {
        Finding& finding = add(severity, offset, prefix + failure.exceptionClass + ": " + failure.words);
        finding.exceptionClass = failure.exceptionClass;
        finding.expected = expectedForm(finding.text);
    }

    void findRefusal()
    {
        if (!m_Read.empty())
        {
            addFailure(Severity::error, m_Read.back().begin, *m_Reading.refusal, "");
            return;
        }
        const std::size_t first = refusedAt(m_Body, m_Reading);
        addFailure(Severity::error, first, *m_Reading.refusal, "");
        m_Findings.back().expected = "RFC 4566, section 5.1: a body begins with v=0";
    }

    void findChanges()
    {
        for (std::size_t i = 0; i < m_Read.size(); ++i)
        {
            findChange(i);
        }
    }

    void findChange(std::size_t i)
    {
        std::string written;
        if (const std::optional<Failure> failure =
                attempt([&] { written = lmsdp::written(static_cast<const LmSdpField&>(*m_Read[i].field)); }))
        {
            addFailure(Severity::note, m_Read[i].begin, *failure, "cannot be written: ");
            return;
        }
        written.resize(written.size() - 2);
        const std::size_t begin = sourceBegin(i);
        const std::string_view source = std::string_view(m_Body.bytes).substr(begin, sourceEnd(i) - begin);
        if (source == written)
        {
            return;
        }
        const std::size_t lastLine = m_Lines.numberAt(lastByte(i));
        const bool swallows = lastLine != m_Lines.numberAt(begin);
        Finding& finding = add(swallows ? Severity::error : Severity::note, begin + firstDifference(source, written),
                               swallows ? "is read together with what stands up to line " + std::to_string(lastLine)
                                        : changeInWords(written));
        finding.written = std::move(written);
        finding.expected = expectedForm(source);
    }

    /// The source of a line begins where its text line begins, unless the line in front of it stands there too.
    std::size_t sourceBegin(std::size_t i) const
    {
        const std::size_t lineBegin = m_Lines[m_Lines.numberAt(m_Read[i].begin)].begin;
        const bool isShared = i > 0 && m_Read[i - 1].begin >= lineBegin;
        const bool isTouched = i > 0 && lastByte(i - 1) >= lineBegin;
        return isShared || isTouched ? m_Read[i].begin : lineBegin;
    }

    /// It ends with the text line that holds the last byte read for it, or where the next one begins.
    std::size_t sourceEnd(std::size_t i) const
    {
        const std::size_t lineEnd = m_Lines[m_Lines.numberAt(lastByte(i))].end;
        const std::size_t next = i + 1 < m_Read.size() ? m_Read[i + 1].begin : lineEnd;
        return std::min(lineEnd, next);
    }

    /// The last byte that was read for a line and is no white space.
    std::size_t lastByte(std::size_t i) const
    {
        std::size_t end = m_Read[i].end;
        while (end > m_Read[i].begin + 1 && isWhite(m_Body.bytes[end - 1]))
        {
            --end;
        }
        return end - 1;
    }

    void findMoves()
    {
        const std::vector<std::size_t> places = writtenPlaces(m_Read);
        const std::vector<bool> moved = movedLines(m_Read, places);
        std::vector<std::size_t> order(places.size());
        for (std::size_t i = 0; i < places.size(); ++i)
        {
            order[places[i]] = i;
        }
        for (std::size_t i = 0; i < places.size(); ++i)
        {
            if (moved[i])
            {
                const std::size_t inFront = m_Read[order[places[i] - 1]].begin;
                add(Severity::note, m_Read[i].begin,
                    "changes its place: it is written behind line " + std::to_string(m_Lines.numberAt(inFront)))
                    .expected = expectedOrder();
            }
        }
    }

    void findUnread()
    {
        const std::string& bytes = m_Body.bytes;
        const auto from = bytes.begin() + static_cast<std::ptrdiff_t>(m_Reading.stop);
        const auto left = std::find_if_not(from, bytes.end(), &isWhite);
        if (left != bytes.end())
        {
            const auto offset = static_cast<std::size_t>(left - bytes.begin());
            const std::size_t count = m_Lines.count() + 1 - m_Lines.numberAt(offset);
            add(Severity::error, offset, "reading ends here: " + counted(count, "line") + " left unread and lost")
                .expected = expectedOrder();
            m_UnreadFrom = m_Lines.numberAt(offset);
        }
    }

    std::size_t firstUnread() const { return m_UnreadFrom == 0 ? m_Lines.count() + 1 : m_UnreadFrom; }

    void findLineEnds()
    {
        findLineEnd(LineEnd::lf, " ending in LF alone, written with CR LF");
        findLineEnd(LineEnd::cr, " ending in CR alone, written with CR LF");
        findLineEnd(LineEnd::none, " without a line end, written with CR LF");
    }

    /// One finding for all lines that end in that way, at the first of them.
    void findLineEnd(LineEnd lineEnd, const char* message)
    {
        std::size_t count = 0;
        std::size_t first = 0;
        for (std::size_t number = 1; number < firstUnread(); ++number)
        {
            if (m_Lines[number].lineEnd == lineEnd && !m_Lines.isBlank(number))
            {
                first = count == 0 ? number : first;
                ++count;
            }
        }
        if (count != 0)
        {
            add(Severity::note, m_Lines[first].end, counted(count, "line") + message).expected = expectedLineEnd();
        }
    }

    /// One finding for each run of blank lines.
    void findBlankLines()
    {
        for (std::size_t number = 1; number < firstUnread(); ++number)
        {
            const std::size_t first = number;
            while (number < firstUnread() && m_Lines.isBlank(number))
            {
                ++number;
            }
            if (number != first)
            {
                add(Severity::note, m_Lines[first].begin, counted(number - first, "blank line") + " left out")
                    .expected = expectedLineEnd();
            }
        }
    }

    const Body& m_Body;
    const Lines m_Lines;
    const Reading m_Reading;
    const std::vector<ReadLine> m_Read;
    std::size_t m_UnreadFrom = 0; ///< number of the first line that was left unread; 0 when there is none
    std::vector<Finding> m_Findings;
};

} // namespace

std::vector<Finding> findingsOf(const Body& body)
{
    return Finder(body).run();
}

} // namespace lmsdp
