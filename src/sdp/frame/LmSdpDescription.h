#pragma once

#include "LmLibs/LmUtil/LmHandle.h"
#include "LmLibs/LmUtil/LmInputStream.h"
#include "LmLibs/LmUtil/LmOutputStream.h"
#include "LmLibs/LmUtil/LmSerializable.h"
#include "LmLibs/LmUtil/LmString.h"
#include "core/ThreadHeapOperators.h"
#include "sdp/LmSdpExport.h"
#include "sdp/frame/LmSdpField.h"
#include "sdp/frame/LmSdpSlots.h"

#include <array>
#include <cstdint>
#include <string_view>

template <typename Product>
class LmSdpRegistry;

/// A group of lines that belong together: the session level, a `t=` line with its `r=` lines, or an `m=` line with
/// what follows it (RFC 4566, section 5).
///
/// It has one slot for each letter, in the order in which lines are written: v t m o s i u e p c b r z k a. A further
/// line of a letter is chained behind the first. Descriptions of one kind are chained as well. Nothing can be taken
/// out again. Not safe for use by two threads at once.
class LMSDP_API LmSdpDescription : public LmObject, public LmSerializable, public Quorvex::ThreadHeapOperators
{
public:
    /// Makes a description of its own class.
    using Constructor = LmSdpDescription* (*)();

    /// `token` is the letter of the first line, `fieldTokens` the letters of the lines that belong here.
    LmSdpDescription(const char* token, const char* fieldTokens);
    ~LmSdpDescription() override;

    LmSdpDescription(const LmSdpDescription&) = delete;
    LmSdpDescription& operator=(const LmSdpDescription&) = delete;

    /// The letter of the first line; valid as long as the description.
    const char* getToken() const { return m_Token.c_str(); }

    /// The next description of this kind; an empty handle behind the last one.
    LmHandle<LmSdpDescription> getNext() { return m_Next; }

    /// True when the token is part of the letters: `os` is part of "vosiuepcbzka". An empty token is part of none.
    bool isFieldInDescription(const char* token);

    /// The first line of the letter with which `token` begins; the others follow by `getNext`. An empty handle when
    /// there is none, and for a null or empty token.
    LmHandle<LmSdpField> getField(const char* token) const;

    /// Files a line in the slot of its letter, behind those that are there; a line that leads to others brings them.
    /// An empty handle does nothing.
    /// @throws LmException "field doesn't belong in this description type LmSdpDescription::addField()" for a token
    ///         that is not part of the letters, or has no slot
    /// @throws LmException "field is already in this description LmSdpDescription::addField()" when the chain would
    ///         run into itself
    /// After a failure the description is as it was.
    void addField(const LmHandle<LmSdpField>& hField);

    /// True when the changed flag of any line is set. The next description is not asked.
    bool checkForChangeFlag();

    /// Makes the description that begins with the next letter, behind any white space, and lets it read its lines.
    /// @throws LmSdpParseError "Unknown token for Description" for a letter that begins none, which stays unread, and
    ///         at the end of input
    /// @throws whatever its lines raise
    static LmHandle<LmSdpDescription> sConstructFrom(LmInputStream& in);

    /// Registers the class for a letter. A letter that is taken stays with its class. Not beside a thread that reads.
    static void sAddConstructor(const char* token, Constructor constructor);

    /// Reads a first line of whatever letter, and then each line whose letter belongs here and begins no description.
    /// What comes behind stays unread, and is no error.
    /// @throws what `addField` and LmSdpField::sConstructFrom raise; the lines read so far stay
    virtual void parse(LmInputStream& in) = 0;

    /// Writes the lines in the order of the slots. The next description is not written.
    /// @throws whatever an incomplete line raises; the lines in front of it are then in `out`
    void serialize(LmOutputStream& out) const override;

protected:
    /// One slot for each letter.
    static constexpr unsigned int sm_SlotCount = LmSdpSlots::sm_Count;

    /// The letters a to z among the field tokens, one bit each.
    static constexpr std::uint32_t sLettersOf(std::string_view fieldTokens)
    {
        std::uint32_t letters = 0;
        for (const char letter : fieldTokens)
        {
            letters |= letter >= 'a' && letter <= 'z' ? std::uint32_t(1) << (letter - 'a') : 0;
        }
        return letters;
    }

    /// The field tokens that all objects of a class share.
    struct FieldTokens
    {
        /// `tokens` is as the public constructor takes it.
        explicit FieldTokens(const char* tokens);

        const LmString text;         ///< is not counted
        const std::uint32_t letters; ///< as `sLettersOf` gives
    };

    /// What the public constructor does, for a class that has made its field tokens once.
    LmSdpDescription(const char* token, const FieldTokens& fieldTokens);

    /// Writes the lines of the slots from `first` up to, but not including, `end`.
    void serializeSlots(LmOutputStream& out, unsigned int first, unsigned int end) const;

    /// Whether any line of those slots has its changed flag set.
    bool isAnyFieldChanged(unsigned int first, unsigned int end) const;

private:
    friend class LmSdpSessionDescription;

    /// Appends at the tail of the chain that begins here. A description that follows here already raises the
    /// assertion "m_Next != hNext"; any other that would close the chain to a ring raises LmException "description is
    /// already in this chain LmSdpDescription::addNext()". Neither is linked.
    void addNext(LmHandle<LmSdpDescription> hNext);
    LmSdpDescription* last();
    bool isBehind(const LmSdpDescription* pDescription) const;

    void file(LmHandle<LmSdpField>&& hField);
    std::uint32_t ownLetters() const;
    bool isOwnLineNext(LmInputStream& in, std::uint32_t letters) const;
    bool hasToken(const char* token) const;
    unsigned int ownSlot(const char* token) const;
    static unsigned int sGetFieldPosition(const char* token);

    LMSDP_LOCAL static const unsigned int sm_TokenOffset;
    LMSDP_LOCAL static const std::array<unsigned int, 26> sm_FieldOrder;
    LMSDP_LOCAL static LmSdpRegistry<LmSdpDescription>* sm_ConstructorMap;

    LmSdpSlots m_Fields;
    LmString m_Token;
    LmString m_FieldTokens;
    LmHandle<LmSdpDescription> m_Next;

    std::uint32_t m_Letters; ///< as `sLettersOf` gives

    /// Where the search for the last description begins: one that was the last when it was looked for.
    LmSdpDescription* m_Tail = this;
};
