#include "Tree.h"

#include "Members.h"
#include "Reading.h"

namespace lmsdp
{
namespace
{

template <typename Level>
void visitLetters(Level& level, const char* letters, TreeVisitor& visitor)
{
    for (; *letters != '\0'; ++letters)
    {
        const char token[] = {*letters, '\0'};
        for (LmHandle<LmSdpField> field = level.getField(token); field; field = field->getNext())
        {
            visitor.line(*field);
        }
    }
}

void visitChain(LmHandle<LmSdpDescription> description, const char* kind, const char* letters, TreeVisitor& visitor)
{
    for (std::size_t number = 1; description; ++number)
    {
        visitor.group(kind, number);
        visitLetters(*description, letters, visitor);
        description = description->getNext();
    }
}

class TreeMaker : public TreeVisitor
{
public:
    explicit TreeMaker(Keys keys) : m_Keys(keys) {}

    void group(const char* kind, std::size_t number) override
    {
        if (number == 0)
        {
            m_Lines = &m_Tree["session"];
            return;
        }
        Json& chain = m_Tree[*kind == 't' ? "times" : "media"];
        chain.push_back(Json::array());
        m_Lines = &chain.back();
    }

    void line(LmSdpField& field) override { m_Lines->push_back(lineOf(field, m_Keys)); }

    Json result() && { return std::move(m_Tree); }

private:
    const Keys m_Keys;
    Json m_Tree{{"session", Json::array()}, {"times", Json::array()}, {"media", Json::array()}};
    Json* m_Lines = nullptr;
};

} // namespace

void visitTree(LmSdpMsg& message, TreeVisitor& visitor)
{
    visitor.group("session", 0);
    visitLetters(message, "vosiuepcbzka", visitor);
    visitChain(message.getTimeDescription(), "time", "tr", visitor);
    visitChain(message.getMediaDescription(), "media", "micbka", visitor);
}

Json lineOf(LmSdpField& field, Keys keys)
{
    const std::string token = field.getToken();
    Json result{{"letter", token}};
    std::string text;
    if (const std::optional<Failure> failure = attempt([&] { text = written(field); }))
    {
        result["value"] = nullptr;
        result["unwritable"] = failure->words;
    }
    else
    {
        text.resize(text.size() - 2);
        result["value"] = lineText(text, keys).substr(token.size() + 1);
    }
    if (Json members = membersOf(field, keys); !members.empty())
    {
        result["members"] = std::move(members);
    }
    return result;
}

Json treeOf(LmSdpMsg& message, Keys keys)
{
    TreeMaker maker(keys);
    visitTree(message, maker);
    return std::move(maker).result();
}

} // namespace lmsdp
