#pragma once

#include "sdp/frame/LmSdpField.h"
#include "sdp/frame/LmSdpWords.h"

#include <string_view>

/// The `m=` line: one medium with its port, transport and formats (RFC 4566, section 5.14).
///
///     m=<media> <port>[/<number of ports>] <proto> <fmt> ...
///     m=audio 49170/2 RTP/AVP 0 8 96
///
/// Media word and transport are not compared with any list. Formats are text; the operations that look for one
/// compare numbers, and a format that is no number, such as `t38`, counts as 0.
/// Not safe for use by two threads at once.
class LMSDP_API LmSdpMediaField : public LmSdpField
{
public:
    /// Reads `text`, which stands behind `m=` and needs no line end. A null pointer makes a blank field.
    explicit LmSdpMediaField(const char* text);
    ~LmSdpMediaField() override;

    /// The media word, such as "audio"; valid until the next change.
    const char* getMediaType() const { return m_MediaType.c_str(); }

    /// The first port; 0 when the medium is refused, or the text was no number.
    unsigned int getPort() const { return m_Port; }

    /// 0 when the line has no number of ports.
    unsigned int getNumberOfPorts() const { return m_NumberOfPorts; }

    /// The transport, such as "RTP/AVP"; valid until the next change.
    const char* getTransport() const { return m_Transport.c_str(); }

    /// All formats, each two separated by one blank.
    LmString getMediaFormats();

    ///@{
    /// Each replaces one value, which is not looked into, and sets the changed flag.
    void setMediaType(const char* text);
    void setPort(unsigned int port);
    void setNumberOfPorts(unsigned int number);
    void setTransport(const char* text);
    ///@}

    ///@{
    /// The same with the number that `atoi` finds in the text. A null pointer changes nothing.
    void setPort(const char* text);
    void setNumberOfPorts(const char* text);
    ///@}

    /// Replaces the formats by the words of the text, which blanks separate, and sets the changed flag. A text that is
    /// empty or ends in a blank, and a null pointer, give an empty last format.
    void setMediaFormats(const char* text);

    /// True when a format has that number.
    bool isMediaFormatPresent(unsigned int format);

    /// Appends a format that is not there yet. The changed flag stays.
    void addMediaFormat(unsigned int format);

    /// Removes the first format with that number. The changed flag stays.
    void removeMediaFormat(unsigned int format);

    /// Reads the line and sets the changed flag. A port that is no number reads as 0.
    /// @throws LmException "LmSdpMediaField::parse Incomplete Media Field" for an empty line, two blanks in front of
    ///         the port or the transport, and a line without formats
    /// @throws LmSdpParseError "Parse error in LmSdpMediaField::parse()" for a line of one word, a port of 256
    ///         characters or more, formats of 256 or more, and a number of ports where either number is not positive
    /// After a failure the field has what was read in front of it; the formats are as they were.
    void parse(LmInputStream& in) override;

    /// Writes the line, also one without formats.
    /// @throws LmException "LmSdpMediaField::serialize() Incomplete Media Field" when the media word or the transport
    ///         is blank; nothing has been written then.
    void serialize(LmOutputStream& out) const override;

    /// The class of the letter "m".
    static LmSdpField* sConstruct();

private:
    LmSdpMediaField();

    template <typename Cursor>
    LMSDP_LOCAL void read(Cursor& cursor);
    void takePort(std::string_view token);
    LmSdpWordList::iterator find(unsigned int format);

    LmString m_MediaType;
    unsigned int m_Port = 0;
    unsigned int m_NumberOfPorts = 0;
    LmString m_Transport;
    LmSdpWordList m_MediaFormats;
};
