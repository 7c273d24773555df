// Which class is made for which letter: the one list of all lines and all descriptions, in the order of RFC 4566,
// section 5. Each entry registers itself when the library is loaded. The registries stand in the same file, so that a
// static link that reads any line also has them all.

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
#include "sdp/frame/LmSdpRegistry.h"
#include "sdp/frame/LmSdpSessionDescription.h"
#include "sdp/media/LmSdpAttributeField.h"
#include "sdp/media/LmSdpMediaField.h"

LmSdpRegistry<LmSdpField>* LmSdpField::sm_pConstructorMap = nullptr;
LmSdpRegistry<LmSdpDescription>* LmSdpDescription::sm_ConstructorMap = nullptr;

namespace
{

template <typename Base>
struct Letter
{
    Letter(const char* token, typename Base::Constructor constructor) { Base::sAddConstructor(token, constructor); }
};

using Line = Letter<LmSdpField>;

const Line s_ProtocolVersion("v", &LmSdpProtocolVersionField::sConstruct);
const Line s_Origin("o", &LmSdpOriginField::sConstruct);
const Line s_SessionName("s", &LmSdpSessionNameField::sConstruct);
const Line s_Information("i", &LmSdpInformationField::sConstruct);
const Line s_Uri("u", &LmSdpUriField::sConstruct);
const Line s_Email("e", &LmSdpEmailField::sConstruct);
const Line s_Phone("p", &LmSdpPhoneField::sConstruct);
const Line s_Connection("c", &LmSdpConnectionField::sConstruct);
const Line s_Bandwidth("b", &LmSdpBandwidthField::sConstruct);
const Line s_Time("t", &LmSdpTimeField::sConstruct);
const Line s_Repeat("r", &LmSdpRepeatField::sConstruct);
const Line s_TimeZone("z", &LmSdpTimeZoneField::sConstruct);
const Line s_Key("k", &LmSdpKeyField::sConstruct);
const Line s_Attribute("a", &LmSdpAttributeField::sConstruct);
const Line s_Media("m", &LmSdpMediaField::sConstruct);

using Description = Letter<LmSdpDescription>;

const Description s_SessionDescription("v", &LmSdpSessionDescription::sConstruct);
const Description s_TimeDescription("t", &LmSdpTimeDescription::sConstruct);
const Description s_MediaDescription("m", &LmSdpMediaDescription::sConstruct);

} // namespace
