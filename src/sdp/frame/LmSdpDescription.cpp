#include "sdp/frame/LmSdpDescription.h"

#include "LmLibs/LmUtil/LmException.h"
#include "LmLibs/LmUtil/LmStreamTokenizer.h"
#include "core/Assertion.h"
#include "core/TraceScope.h"
#include "sdp/frame/LmSdpChain.h"
#include "sdp/frame/LmSdpCommonText.h"
#include "sdp/frame/LmSdpLineReading.h"
#include "sdp/frame/LmSdpParseError.h"
#include "sdp/frame/LmSdpRegistry.h"

#include <utility>

namespace
{

Quorvex::FileLogger s_Logger("harnwick.lm.LmSdpDescription");

constexpr bool isLetter(char c)
{
    return c >= 'a' && c <= 'z';
}

/// A one-letter token of what `sDiscardWhite` has shown.
struct Letter
{
    explicit Letter(int next) : text{static_cast<char>(next & 0xFF), '\0'} {}

    /// Also true for a byte 0xFF of the text, which shows in the same way.
    bool isEndOfInput() const { return text[0] == static_cast<char>(0xFF); }

    char text[2];
};

constexpr std::uint32_t bitOf(char letter)
{
    return std::uint32_t(1) << (letter - 'a');
}

} // namespace

const unsigned int LmSdpDescription::sm_TokenOffset = 'a';

const std::array<unsigned int, 26> LmSdpDescription::sm_FieldOrder = {
    // a   b  c   d  e   f   g   h  i   j   k   l  m
    14, 10, 9, 15, 7, 15, 15, 15, 5, 15, 13, 15, 2,
    // n  o  p   q   r  s  t  u  v   w   x   y   z
    15, 3, 8, 15, 11, 4, 1, 6, 0, 15, 15, 15, 12};

LmSdpDescription::FieldTokens::FieldTokens(const char* tokens)
    : text(LmString::sAdopt(*LmStringBuffer::sCreateImmortal(tokens))), letters(sLettersOf(tokens))
{
}

LmSdpDescription::LmSdpDescription(const char* token, const char* fieldTokens)
    : m_Token(LmString::sAdopt(lmSdpTokenBuffer(token)))
    , m_FieldTokens(fieldTokens)
    , m_Letters(sLettersOf(m_FieldTokens.view()))
{
}

LmSdpDescription::LmSdpDescription(const char* token, const FieldTokens& fieldTokens)
    : m_Token(LmString::sAdopt(lmSdpTokenBuffer(token)))
    , m_FieldTokens(fieldTokens.text)
    , m_Letters(fieldTokens.letters)
{
}

LmSdpDescription::~LmSdpDescription()
{
    lmReleaseChain(m_Next, [](LmSdpDescription& next) -> LmHandle<LmSdpDescription>& { return next.m_Next; });
}

/// The slot of the letter with which the token begins; one past the last slot where it has none.
inline unsigned int LmSdpDescription::sGetFieldPosition(const char* token)
{
    if (token == nullptr || !isLetter(token[0]))
    {
        return sm_SlotCount;
    }
    return sm_FieldOrder[static_cast<unsigned int>(token[0]) - sm_TokenOffset];
}

/// Nearly all tokens are single letters, for which no search of a text in a text is needed.
inline bool LmSdpDescription::hasToken(const char* token) const
{
    if (__builtin_expect(token != nullptr && isLetter(token[0]) && token[1] == '\0', 1))
    {
        return (m_Letters & bitOf(token[0])) != 0;
    }
    return m_FieldTokens.indexOf(token, 0) != -1;
}

/// The slot for a field of that token; one past the last slot where it does not belong here.
inline unsigned int LmSdpDescription::ownSlot(const char* token) const
{
    const unsigned int slot = sGetFieldPosition(token);
    return slot < sm_SlotCount && hasToken(token) ? slot : sm_SlotCount;
}

bool LmSdpDescription::isFieldInDescription(const char* token)
{
    return hasToken(token);
}

/// The letters a to z that belong here and begin no description.
inline std::uint32_t LmSdpDescription::ownLetters() const
{
    return m_Letters & ~(sm_ConstructorMap == nullptr ? 0 : sm_ConstructorMap->letters());
}

/// True when the next line, shown behind any white space, has a letter that belongs here and begins no description.
/// `letters` is what `ownLetters` gives.
inline bool LmSdpDescription::isOwnLineNext(LmInputStream& in, std::uint32_t letters) const
{
    const int next = LmStreamTokenizer::sDiscardWhite(in);
    if (__builtin_expect(next >= 'a' && next <= 'z', 1))
    {
        return (letters & bitOf(static_cast<char>(next))) != 0;
    }
    const Letter letter(next);
    return !letter.isEndOfInput() && hasToken(letter.text) &&
           (sm_ConstructorMap == nullptr || sm_ConstructorMap->find(letter.text) == nullptr);
}

LmHandle<LmSdpField> LmSdpDescription::getField(const char* token) const
{
    const unsigned int slot = sGetFieldPosition(token);
    return slot < sm_SlotCount ? m_Fields.first(slot) : nullptr;
}

/// Within the loop over the lines, where it is nearly always called: there the handle need not be in memory.
__attribute__((always_inline)) inline void LmSdpDescription::file(LmHandle<LmSdpField>&& hField)
{
    LmSdpField* const pField = hField.untested();
    const unsigned int slot = ownSlot(pField->getToken());
    if (__builtin_expect(slot >= sm_SlotCount, 0))
    {
        LmException::sThrow("field doesn't belong in this description type LmSdpDescription::addField()");
    }
    LmSdpSlots::Chain* const pChain = m_Fields.chain(slot);
    if (pChain == nullptr)
    {
        m_Fields.take(slot, std::move(hField));
        return;
    }
    LmSdpField* const pLast = pChain->pLast->last();
    LmSdpField* const pAddedLast = pField->last();
    if (pAddedLast == pLast)
    {
        LmException::sThrow("field is already in this description LmSdpDescription::addField()");
    }
    pLast->m_Next = std::move(hField);
    pChain->pLast = pAddedLast;
}

void LmSdpDescription::addField(const LmHandle<LmSdpField>& hField)
{
    if (hField)
    {
        file(LmHandle<LmSdpField>(hField));
    }
}

bool LmSdpDescription::checkForChangeFlag()
{
    return isAnyFieldChanged(0, sm_SlotCount);
}

LmHandle<LmSdpDescription> LmSdpDescription::sConstructFrom(LmInputStream& in)
{
    const Quorvex::TraceScope trace(s_Logger, "LmSdpDescription::sConstructFrom");
    const Letter letter(LmStreamTokenizer::sDiscardWhite(in));
    const Constructor constructor = sm_ConstructorMap == nullptr ? nullptr : sm_ConstructorMap->find(letter.text);
    LmHandle<LmSdpDescription> hDescription = constructor == nullptr ? nullptr : constructor();
    if (hDescription.isNull())
    {
        LmSdpParseError::sThrow("Unknown token for Description");
    }
    hDescription.untested()->parse(in);
    return hDescription;
}

void LmSdpDescription::sAddConstructor(const char* token, Constructor constructor)
{
    LmSdpRegistry<LmSdpDescription>::sAdd(sm_ConstructorMap, token, constructor);
}

void LmSdpDescription::parse(LmInputStream& in)
{
    const Quorvex::TraceScope trace(s_Logger, "LmSdpDescription::parse");
    const std::uint32_t letters = ownLetters();
    do
    {
        file(LmSdpField::sReadLine(in));
    } while (isOwnLineNext(in, letters));
}

void LmSdpDescription::serialize(LmOutputStream& out) const
{
    const Quorvex::TraceScope trace(s_Logger, "LmSdpDescription::serialize");
    serializeSlots(out, 0, sm_SlotCount);
}

void LmSdpDescription::serializeSlots(LmOutputStream& out, unsigned int first, unsigned int end) const
{
    m_Fields.forEach(first, end, [&out](const LmSdpField& chain) {
        for (const LmSdpField* pField = &chain; pField != nullptr; pField = pField->m_Next.untested())
        {
            pField->serialize(out);
        }
    });
}

bool LmSdpDescription::isAnyFieldChanged(unsigned int first, unsigned int end) const
{
    bool isChanged = false;
    m_Fields.forEach(first, end, [&isChanged](LmSdpField& chain) {
        for (LmSdpField* pField = &chain; !isChanged && pField != nullptr; pField = pField->m_Next.untested())
        {
            isChanged = pField->getChangedFlag();
        }
    });
    return isChanged;
}

void LmSdpDescription::addNext(LmHandle<LmSdpDescription> hNext)
{
    const Quorvex::TraceScope trace(s_Logger, "LmSdpDescription::addNext");
    LmSdpDescription* const pTail = last();
    LmSdpDescription* const pAddedLast = hNext->last();
    if (pAddedLast != pTail)
    {
        pTail->m_Next = std::move(hNext);
        m_Tail = pAddedLast;
    }
    else if (isBehind(hNext))
    {
        Quorvex::Assertion(false, "m_Next != hNext", "LmSdpDescription", __LINE__);
    }
    else
    {
        LmException::sThrow("description is already in this chain LmSdpDescription::addNext()");
    }
}

LmSdpDescription* LmSdpDescription::last()
{
    while (LmSdpDescription* const pNext = m_Tail->m_Next.untested())
    {
        m_Tail = pNext;
    }
    return m_Tail;
}

bool LmSdpDescription::isBehind(const LmSdpDescription* pDescription) const
{
    const LmSdpDescription* pNext = m_Next;
    while (pNext != nullptr && pNext != pDescription)
    {
        pNext = pNext->m_Next;
    }
    return pNext != nullptr;
}
