#pragma once

#include "LmLibs/LmUtil/LmStringOutputStream.h"
#include "sdp/frame/LmSdpField.h"
#include "support/Matchers.h"

#include <functional>
#include <initializer_list>
#include <sstream>
#include <string>
#include <vector>

/// Tables of what a class with `parse` and `serialize` reads, keeps and writes.

/// What is expected afterwards, of an object that had values before.
struct Outcome
{
    Failure failure;
    std::string state;  ///< as the class's `describe` gives it
    std::string writes; ///< all bytes; where writing fails, "!" and the words stand behind what was written in front
};

/// A text that the object's `parse` reads, and how many bytes of it stay unread.
struct LineRow
{
    std::string name;
    std::string text;
    Outcome outcome;
    unsigned int left = 0;
};

/// Calls on the object; a step may put a new one in its place.
template <typename T>
struct StepsRow
{
    std::string name;
    std::function<void(LmHandle<T>& hObject)> steps;
    Outcome outcome;
};

inline Outcome gives(const std::string& state, const std::string& writes)
{
    return {{}, state, writes};
}

inline Outcome refused(const Failure& failure, const std::string& state, const std::string& writes)
{
    return {failure, state, writes};
}

/// A member as the tables show it; a null pointer shows as such.
struct Value
{
    Value(const char* value) : text(value == nullptr ? "(null)" : value) {}
    Value(const LmString& value) : text(value.view()) {}
    Value(unsigned int value) : text(std::to_string(value)) {}

    std::string text;
};

/// Each value in brackets.
inline std::string values(std::initializer_list<Value> all)
{
    std::string text;
    for (const Value& value : all)
    {
        text += "[" + value.text + "]";
    }
    return text;
}

/// The same with an asterisk when the changed flag is set.
inline std::string stateOf(LmSdpField& field, std::initializer_list<Value> all)
{
    return values(all) + (field.getChangedFlag() ? "*" : "");
}

inline std::string writesOf(const LmSerializable& object)
{
    LmStringOutputStream out;
    const Failure failure = failureOf([&] { object.serialize(out); });
    EXPECT_NE(failure.thrown, "LmSdpParseError") << "writing must raise a plain LmException";
    const std::string text(out.getString().view());
    return failure.thrown.empty() ? text : text + "!" + failure.words;
}

/// A test of its own for each row, named after it: each works on an object that `before` makes, and looks at it
/// through `describe`.
template <typename T>
class Table
{
public:
    Table(const char* suite, LmHandle<T> (*before)(), std::string (*describe)(T& object),
          const std::vector<LineRow>& lines, const std::vector<StepsRow<T>>& calls)
        : m_Before(before), m_Describe(describe)
    {
        for (const LineRow& row : lines)
        {
            enter(suite, row);
        }
        for (const StepsRow<T>& row : calls)
        {
            enter(suite, row);
        }
    }

private:
    class Case : public testing::Test
    {
    public:
        explicit Case(std::function<void()> body) : m_Body(std::move(body)) {}
        void TestBody() override { m_Body(); }

    private:
        std::function<void()> m_Body;
    };

    template <typename Row>
    void enter(const char* suite, const Row& row) const
    {
        const auto make = [table = *this, row]() -> testing::Test* {
            return new Case([table, row] { table.check(row); });
        };
        testing::RegisterTest(suite, row.name.c_str(), nullptr, nullptr, __FILE__, __LINE__, make);
    }

    void check(const LineRow& row) const
    {
        const Reading reading = readEachWay(row.text, [&](LmInputStream& in) {
            LmHandle<T> hObject = m_Before();
            return after(hObject, [&] { hObject->parse(in); });
        });
        EXPECT_EQ(reading, (Reading{print(row.outcome), {}, row.left}));
    }

    void check(const StepsRow<T>& row) const
    {
        LmHandle<T> hObject = m_Before();
        EXPECT_EQ(after(hObject, [&] { row.steps(hObject); }), print(row.outcome));
    }

    std::string after(LmHandle<T>& hObject, const std::function<void()>& action) const
    {
        const Failure failure = failureOf(action);
        const std::string state = m_Describe(*hObject);
        return print({failure, state, writesOf(static_cast<const T&>(*hObject))});
    }

    static std::string print(const Outcome& outcome)
    {
        std::ostringstream text;
        text << outcome.failure << "\n  state:  " << outcome.state << "\n  writes: " << outcome.writes;
        return text.str();
    }

    LmHandle<T> (*m_Before)();
    std::string (*m_Describe)(T& object);
};
