#pragma once

#include "sdp/media/LmSdpAttribute.h"

#include <string_view>

/// The value of an `a=rtpmap` line: what an RTP payload type stands for (RFC 4566, section 6).
///
///     <payload type> <encoding name>/<clock rate>[/<encoding parameters>]
///     97 L16/44100/2
///
/// The third part is the number of channels when it is a number other than 0, and the encoding parameters otherwise;
/// where an object has both, the number of channels is written. Clock rates are in Hz. Numbers are not tested any
/// further, and a text that is no number reads as 0.
/// Not safe for use by two threads at once.
class LMSDP_API LmSdpRtpAttribute : public LmSdpAttribute
{
public:
    /// Reads `text`, which stands behind `a=rtpmap:` and needs no line end. A null pointer makes a blank value.
    explicit LmSdpRtpAttribute(const char* text);

    /// The same for one line with a known end, which is not kept.
    explicit LmSdpRtpAttribute(std::string_view line);
    ~LmSdpRtpAttribute() override;

    /// The payload type: the number in each RTP packet, and among the formats of the `m=` line.
    unsigned int getPayloadType() { return m_PayloadType; }

    /// The name, such as "PCMU"; valid until the next change.
    const char* getEncodingName() { return m_EncodingName.c_str(); }

    /// In Hz.
    unsigned int getClockRate() { return m_ClockRate; }

    /// 0 when there is none.
    unsigned int getNumberOfChannels() { return m_NumberOfChannels; }

    /// What stands in the third part when that is no number of channels; valid until the next change.
    const char* getEncodingParameters() { return m_EncodingParameters.c_str(); }

    ///@{
    /// Each replaces one value, which is not looked into, and is seen in `getValue` and `serialize`.
    void setPayloadType(unsigned int payloadType);
    void setEncodingName(const char* text);
    void setClockRate(unsigned int clockRate);
    void setNumberOfChannels(unsigned int channels);
    void setEncodingParameters(const char* text);
    ///@}

    ///@{
    /// The same with the number that `atoi` finds in the text. A null pointer changes nothing.
    void setPayloadType(const char* text);
    void setClockRate(const char* text);
    void setNumberOfChannels(const char* text);
    ///@}

    /// Reads the rest of the line.
    /// @throws LmSdpParseError "RTP attribute payload type: Space not found or misplaced" for a line without a blank,
    ///         or with one in front
    /// @throws LmSdpParseError "RTP attribute encoding name: Slash not found or misplaced" without a slash behind that
    /// @throws LmSdpParseError "failed to parde SDP rtpmap attribute : no clock rate found" with nothing behind it
    /// After a failure the object has what was read in front of it.
    void parse(LmInputStream& in) override;

    /// @throws LmException "LmSdpRtpAttribute::serialize() Incomplete Rtp Attribute Field" when the encoding name is
    ///         blank; nothing has been written then.
    void serialize(LmOutputStream& out) const override;

private:
    void buildValue() const override;
    void read(std::string_view line);
    void change(unsigned int& member, unsigned int value);
    void change(unsigned int& member, const char* text);
    void change(LmString& member, LmString text);

    unsigned int m_PayloadType = 0;
    LmString m_EncodingName;
    unsigned int m_ClockRate = 0;
    unsigned int m_NumberOfChannels = 0;
    LmString m_EncodingParameters;
};
