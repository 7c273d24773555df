#include "LmLibs/LmUtil/LmHandle.h"

#include "LmLibs/LmUtil/LmStringOutputStream.h"
#include "support/Assertions.h"
#include "support/Matchers.h"

#include <type_traits>

namespace
{

class Node : public LmObject
{
public:
    int value = 0;
};

class Leaf : public Node
{
};

class OtherLeaf : public Node
{
};

/// Also derived from a second base, so that a cast to it moves the pointer.
struct Label
{
    virtual ~Label() = default;
    int label = 5;
};
class Labelled : public Label, public LmObject
{
};

/// The count, seen by a reference taken and given up again.
unsigned long countOf(LmObject* pObject)
{
    pObject->AddRef();
    return pObject->Release(false);
}

TEST(Handle, IsOnePointerWide)
{
    EXPECT_EQ(sizeof(LmHandle<Node>), sizeof(void*));
    EXPECT_FALSE((std::is_convertible_v<LmHandle<Node>, int>));
}

TEST(Handle, OwnsWhatItIsFirstGiven)
{
    Node* const pNode = new Node;
    EXPECT_EQ(pNode->AddRef(), 1u) << "a new object has no owner";
    EXPECT_EQ(pNode->Release(false), 0u);
    LmHandle<Node> hNode = pNode;
    EXPECT_EQ(countOf(pNode), 1u);
    {
        const LmHandle<Node> hCopy = hNode;
        const LmHandle<LmObject> hBase = hNode;
        EXPECT_EQ(countOf(pNode), 3u);
        EXPECT_TRUE(hCopy == hNode);
        EXPECT_FALSE(pNode->isUnshared());
    }
    EXPECT_TRUE(pNode->isUnshared());
    const LmHandle<Node> hMoved = std::move(hNode);
    EXPECT_EQ(countOf(pNode), 1u);
    EXPECT_TRUE(hNode.isNull());
}

TEST(Handle, ChangesItsObjectByAssignment)
{
    Node* const pFirst = new Node;
    Node* const pSecond = new Node;
    LmHandle<Node> hFirst = pFirst;
    LmHandle<Node> hNode = hFirst;
    hNode = pSecond;
    EXPECT_EQ(countOf(pFirst), 1u);
    EXPECT_EQ(countOf(pSecond), 1u);
    hFirst = hNode;
    EXPECT_EQ(countOf(pSecond), 2u);
    hFirst = nullptr;
    EXPECT_EQ(countOf(pSecond), 1u);
    EXPECT_TRUE(hFirst == nullptr);
    EXPECT_TRUE(nullptr != hNode);
    EXPECT_TRUE(hNode == pSecond);
    EXPECT_TRUE(hNode != hFirst);
}

TEST(Handle, SurvivesAssignmentOfWhatItHolds)
{
    Node* const pNode = new Node;
    LmHandle<Node> hNode = pNode;
    LmHandle<Node>& hSame = hNode;
    hNode = pNode;
    hNode = hSame;
    hNode = std::move(hSame);
    EXPECT_TRUE(hNode == pNode);
    EXPECT_EQ(countOf(pNode), 1u);
}

TEST(Handle, AssignmentOfAPartOfItsOwnObjectKeepsThatAlive)
{
    class Link : public LmObject
    {
    public:
        LmHandle<Link> next;
    };
    LmHandle<Link> hLink = new Link;
    hLink->next = new Link;
    Link* const pNext = hLink->next;
    hLink = hLink->next;
    EXPECT_TRUE(hLink == pNext);
    hLink->next = new Link;
    hLink = std::move(hLink->next);
    EXPECT_EQ(countOf(hLink), 1u);
}

TEST(Handle, EmptyOneGivesANullPointerWithoutAnAssertion)
{
    const Assertions assertions;
    for (const LmHandle<Node>& hEmpty : {LmHandle<Node>(), LmHandle<Node>(nullptr), LmHandle<Node>(LmHandle<Leaf>())})
    {
        EXPECT_TRUE(hEmpty.isNull());
        EXPECT_FALSE(hEmpty);
        EXPECT_EQ(hEmpty.operator->(), nullptr);
        EXPECT_EQ(static_cast<Node*>(hEmpty), nullptr);
        EXPECT_TRUE(hEmpty == LmHandle<Node>());
    }
    EXPECT_TRUE(assertions.raised().empty());
}

TEST(Handle, ConvertsToAClassThatItsObjectHas)
{
    Leaf* const pLeaf = new Leaf;
    const LmHandle<Node> hNode = pLeaf;
    const LmHandle<Leaf> hLeaf = hNode;
    EXPECT_TRUE(hLeaf == pLeaf);
    EXPECT_TRUE(hLeaf == hNode);
    EXPECT_EQ(countOf(pLeaf), 2u);
    LmHandle<Leaf> hAssigned;
    hAssigned = hNode;
    EXPECT_TRUE(hAssigned == hLeaf);
}

TEST(Handle, IsEmptyAfterConversionToAClassThatItsObjectLacks)
{
    const Assertions assertions;
    const LmHandle<Node> hNode = new Leaf;
    // More than once: what a type test remembers of the class must not change its answer.
    for (int round = 0; round < 3; ++round)
    {
        const LmHandle<Leaf> hLeaf = hNode;
        LmHandle<OtherLeaf> hOther = hNode;
        EXPECT_FALSE(hLeaf.isNull());
        EXPECT_TRUE(hOther.isNull());
        hOther = new OtherLeaf;
        hOther = hNode;
        EXPECT_TRUE(hOther.isNull());
    }
    EXPECT_EQ(countOf(hNode), 1u);
    EXPECT_TRUE(assertions.raised().empty());
}

TEST(Handle, FindsAnObjectBehindAnotherBase)
{
    const LmHandle<Labelled> hLabelled = new Labelled;
    const LmHandle<LmObject> hObject = hLabelled;
    for (int round = 0; round < 2; ++round)
    {
        const LmHandle<Labelled> hBack = hObject;
        ASSERT_FALSE(hBack.isNull());
        EXPECT_EQ(hBack->label, 5);
    }
}

TEST(Object, BaseOperationsGoByIdentity)
{
    const Node one;
    const Node two(one);
    EXPECT_EQ(one.clone(), nullptr);
    EXPECT_EQ(one.compareWith(&one), 0);
    EXPECT_NE(one.compareWith(&two), 0);
    EXPECT_EQ(one.compareWith(&two) < 0, two.compareWith(&one) > 0);
    EXPECT_EQ(one.hashCode(), one.hashCode());
    LmStringOutputStream out;
    static_cast<const LmObject&>(out).display(out, true);
    EXPECT_EQ(out.getString().view(), "LmStringOutputStream");
}

TEST(Object, CopyHasNoOwner)
{
    const LmHandle<Node> hNode = new Node;
    hNode->value = 3;
    LmHandle<Node> hCopy = new Node(*hNode);
    EXPECT_EQ(countOf(hCopy), 1u);
    *hCopy = *hNode;
    EXPECT_EQ(countOf(hCopy), 1u);
    EXPECT_EQ(hCopy->value, 3);
}

} // namespace
