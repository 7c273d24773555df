// The operations of the message and of the descriptions that know the line classes one by one. All else in the frame
// gets by without them.

#include "core/TraceScope.h"
#include "sdp/fields/LmSdpBandwidthField.h"
#include "sdp/fields/LmSdpConnectionField.h"
#include "sdp/fields/LmSdpEmailField.h"
#include "sdp/fields/LmSdpInformationField.h"
#include "sdp/fields/LmSdpKeyField.h"
#include "sdp/fields/LmSdpOriginField.h"
#include "sdp/fields/LmSdpPhoneField.h"
#include "sdp/fields/LmSdpProtocolVersionField.h"
#include "sdp/fields/LmSdpRepeatField.h"
#include "sdp/fields/LmSdpSessionNameField.h"
#include "sdp/fields/LmSdpTimeField.h"
#include "sdp/fields/LmSdpTimeZoneField.h"
#include "sdp/fields/LmSdpUriField.h"
#include "sdp/frame/LmSdpMsg.h"
#include "sdp/media/LmSdpAttributeField.h"
#include "sdp/media/LmSdpMediaField.h"

LmSdpTimeDescription::LmSdpTimeDescription(const LmHandle<LmSdpTimeField>& hTime,
                                           const LmHandle<LmSdpRepeatField>& hRepeat)
    : LmSdpTimeDescription()
{
    addField(hTime);
    addField(hRepeat);
}

LmHandle<LmSdpTimeField> LmSdpTimeDescription::getTimeField()
{
    return getField("t");
}

LmHandle<LmSdpRepeatField> LmSdpTimeDescription::getRepeatField()
{
    return getField("r");
}

LmSdpMediaDescription::LmSdpMediaDescription(const LmHandle<LmSdpMediaField>& hMedia,
                                             const LmHandle<LmSdpAttributeField>& hAttribute)
    : LmSdpMediaDescription()
{
    addField(hMedia);
    addField(hAttribute);
}

LmHandle<LmSdpMediaField> LmSdpMediaDescription::getMediaField() const
{
    return getField("m");
}

bool LmSdpMediaDescription::isMediaFormatPresent(unsigned int format)
{
    const LmHandle<LmSdpMediaField> hMedia = getMediaField();
    return hMedia && hMedia->isMediaFormatPresent(format);
}

LmSdpMsg::LmSdpMsg(const LmHandle<LmSdpOriginField>& hOrigin, const LmHandle<LmSdpSessionNameField>& hSessionName,
                   const LmHandle<LmSdpEmailField>& hEmail, const LmHandle<LmSdpConnectionField>& hConnection,
                   const LmHandle<LmSdpTimeDescription>& hTime, const LmHandle<LmSdpMediaDescription>& hMedia)
{
    const Quorvex::TraceScope trace(sLogger(), "LmSdpMsg ctor 1");
    build(hOrigin, hSessionName, hEmail, hConnection, hTime, hMedia);
}

LmSdpMsg::LmSdpMsg(const LmHandle<LmSdpOriginField>& hOrigin, const LmHandle<LmSdpSessionNameField>& hSessionName,
                   const LmHandle<LmSdpPhoneField>& hPhone, const LmHandle<LmSdpConnectionField>& hConnection,
                   const LmHandle<LmSdpTimeDescription>& hTime, const LmHandle<LmSdpMediaDescription>& hMedia)
{
    const Quorvex::TraceScope trace(sLogger(), "LmSdpMsg ctor 2");
    build(hOrigin, hSessionName, hPhone, hConnection, hTime, hMedia);
}

void LmSdpMsg::build(const LmHandle<LmSdpOriginField>& hOrigin, const LmHandle<LmSdpSessionNameField>& hSessionName,
                     const LmHandle<LmSdpField>& hContact, const LmHandle<LmSdpConnectionField>& hConnection,
                     const LmHandle<LmSdpTimeDescription>& hTime, const LmHandle<LmSdpMediaDescription>& hMedia)
{
    m_SessionDescription = new LmSdpSessionDescription;
    m_SessionDescription->addField(new LmSdpProtocolVersionField("0"));
    m_SessionDescription->addField(hOrigin);
    m_SessionDescription->addField(hSessionName);
    m_SessionDescription->addField(hContact);
    m_SessionDescription->addField(hConnection);
    m_SessionDescription->addDescription(hTime);
    m_SessionDescription->addDescription(hMedia);
}

LmHandle<LmSdpMediaDescription> LmSdpMsg::getMediaDescription(unsigned int format)
{
    for (LmHandle<LmSdpMediaDescription> hMedia = getMediaDescription(); hMedia; hMedia = hMedia->getNext())
    {
        if (hMedia->isMediaFormatPresent(format))
        {
            return hMedia;
        }
    }
    return nullptr;
}

LmHandle<LmSdpProtocolVersionField> LmSdpMsg::getProtocolVersionField()
{
    return getField("v");
}

LmHandle<LmSdpOriginField> LmSdpMsg::getOriginField()
{
    return getField("o");
}

LmHandle<LmSdpSessionNameField> LmSdpMsg::getSessionNameField()
{
    return getField("s");
}

LmHandle<LmSdpInformationField> LmSdpMsg::getInformationField()
{
    return getField("i");
}

LmHandle<LmSdpUriField> LmSdpMsg::getUriField()
{
    return getField("u");
}

LmHandle<LmSdpEmailField> LmSdpMsg::getEmailField()
{
    return getField("e");
}

LmHandle<LmSdpPhoneField> LmSdpMsg::getPhoneField()
{
    return getField("p");
}

LmHandle<LmSdpConnectionField> LmSdpMsg::getConnectionField()
{
    return getField("c");
}

LmHandle<LmSdpBandwidthField> LmSdpMsg::getBandwidthField()
{
    return getField("b");
}

LmHandle<LmSdpTimeZoneField> LmSdpMsg::getTimeZoneField()
{
    return getField("z");
}

LmHandle<LmSdpKeyField> LmSdpMsg::getKeyField()
{
    return getField("k");
}

LmHandle<LmSdpAttributeField> LmSdpMsg::getAttributeField()
{
    return getField("a");
}
