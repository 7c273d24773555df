#include "Order.h"

#include <algorithm>
#include <numeric>
#include <string_view>
#include <tuple>

namespace lmsdp
{
namespace
{

constexpr std::size_t s_None = ~std::size_t(0);

/// Where a line is written: the part of the body, the description within it, the letter within that.
struct WrittenKey
{
    unsigned int part;
    std::size_t description;
    std::size_t letter;

    friend bool operator<(const WrittenKey& left, const WrittenKey& right)
    {
        return std::tie(left.part, left.description, left.letter) <
               std::tie(right.part, right.description, right.letter);
    }
};

enum Part : unsigned int
{
    sessionFront,
    times,
    sessionBack,
    media
};

char letterOf(const ReadLine& line)
{
    return line.field->getToken()[0];
}

/// Follows the text and tells for each line to what it belongs.
class KeyMaker
{
public:
    WrittenKey next(char letter)
    {
        constexpr std::string_view session = "vosiuepcbtrzka";
        m_Media += letter == 'm';
        m_Times += letter == 't';
        if (m_Media != 0)
        {
            return {media, m_Media, std::string_view("micbka").find(letter)};
        }
        const std::size_t position = session.find(letter);
        if (letter == 't' || letter == 'r')
        {
            return {times, m_Times, position};
        }
        return {position < session.find('t') ? sessionFront : sessionBack, 0, position};
    }

private:
    std::size_t m_Media = 0;
    std::size_t m_Times = 0;
};

/// The heaviest run that ends in one line.
struct Run
{
    std::size_t weight = 0;
    std::size_t last = s_None; ///< the line in which it ends
};

/// Of two runs of one weight, the one that ends earlier in the text.
const Run& better(const Run& left, const Run& right)
{
    return right.weight > left.weight || (right.weight == left.weight && right.last < left.last) ? right : left;
}

/// The best run among those that end at or in front of a place, in logarithmic time.
class BestRuns
{
public:
    explicit BestRuns(std::size_t places) : m_Tree(places + 1) {}

    Run inFrontOf(std::size_t place) const
    {
        Run best;
        for (; place > 0; place &= place - 1)
        {
            best = better(best, m_Tree[place]);
        }
        return best;
    }

    void add(std::size_t place, const Run& run)
    {
        for (++place; place < m_Tree.size(); place += place & (~place + 1))
        {
            m_Tree[place] = better(m_Tree[place], run);
        }
    }

private:
    std::vector<Run> m_Tree;
};

} // namespace

std::vector<std::size_t> writtenPlaces(const std::vector<ReadLine>& lines)
{
    KeyMaker maker;
    std::vector<WrittenKey> keys;
    keys.reserve(lines.size());
    for (const ReadLine& line : lines)
    {
        keys.push_back(maker.next(letterOf(line)));
    }
    std::vector<std::size_t> order(lines.size());
    std::iota(order.begin(), order.end(), std::size_t(0));
    std::stable_sort(order.begin(), order.end(),
                     [&keys](std::size_t left, std::size_t right) { return keys[left] < keys[right]; });
    std::vector<std::size_t> places(lines.size());
    for (std::size_t place = 0; place < order.size(); ++place)
    {
        places[order[place]] = place;
    }
    return places;
}

std::vector<bool> movedLines(const std::vector<ReadLine>& lines, const std::vector<std::size_t>& places)
{
    BestRuns runs(lines.size());
    std::vector<std::size_t> previous(lines.size());
    Run best;
    for (std::size_t i = 0; i < lines.size(); ++i)
    {
        const Run inFront = runs.inFrontOf(places[i]);
        const bool beginsDescription = letterOf(lines[i]) == 't' || letterOf(lines[i]) == 'm';
        const Run run{inFront.weight + (beginsDescription ? lines.size() : 1), i};
        previous[i] = inFront.last;
        runs.add(places[i], run);
        best = better(best, run);
    }
    std::vector<bool> moved(lines.size(), true);
    for (std::size_t i = best.last; i != s_None; i = previous[i])
    {
        moved[i] = false;
    }
    return moved;
}

} // namespace lmsdp
