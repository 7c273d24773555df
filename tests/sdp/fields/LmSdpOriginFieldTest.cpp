#include "sdp/fields/LmSdpOriginField.h"

#include "sdp/fields/LineTable.h"

namespace
{

using Field = LmSdpOriginField;

LmHandle<Field> before()
{
    return new Field("U S V N T A");
}

std::string describe(Field& field)
{
    return stateOf(field, {field.getUsername(), field.getSessionId(), field.getSessionVersion(), field.getNetworkType(),
                           field.getAddressType(), field.getAddress()});
}

const std::string s_Incomplete = "!LmSdpOriginField::serialize() Incomplete Origin Field";
const std::string s_LongWord(5000, '9');

const Table<Field> s_Table(
    "OriginField", before, describe,
    {{"SixWords",
      "u 1 2 IN IP4 10.47.16.5\r\ns=", gives("[u][1][2][IN][IP4][10.47.16.5]", "o=u 1 2 IN IP4 10.47.16.5\r\n"), 2},
     {"AnyWhiteSpaceSeparates", " a  b\tc \v d\fe f \rs=", gives("[a][b][c][d][e][f]", "o=a b c d e f\r\n"), 2},
     {"NothingIsLookedInto",
      "- " + s_LongWord + " x \x80\xFF /:=", gives("[-][" + s_LongWord + "][x][\x80\xFF][/:=][]", s_Incomplete)},
     {"FurtherWordsStayUnread", "a b c d e f g\r\n", gives("[a][b][c][d][e][f]", "o=a b c d e f\r\n"), 3},
     {"MissingWordsAreNotTakenFromTheNextLine", "a b\r\ns=x", gives("[a][b][][][][]", s_Incomplete), 3},
     {"EmptyLine", "\ns=x", gives("[][][][][][]", s_Incomplete), 3}},
    {{"ConstructorWithoutText", [](auto& h) { h = new Field(nullptr); }, gives("[][][][][][]", s_Incomplete)},
     {"Setters",
      [](auto& h) {
          h->setUsername("a b"), h->setSessionId("c"), h->setSessionVersion("d"), h->setNetworkType("e"),
              h->setAddressType("f"), h->setAddress("g");
      },
      gives("[a b][c][d][e][f][g]*", "o=a b c d e f g\r\n")},
     {"NoUsername", [](auto& h) { h->setUsername(""); }, gives("[][S][V][N][T][A]*", s_Incomplete)},
     {"NoSessionId", [](auto& h) { h->setSessionId(nullptr); }, gives("[U][][V][N][T][A]*", s_Incomplete)},
     {"NoSessionVersion", [](auto& h) { h->setSessionVersion(""); }, gives("[U][S][][N][T][A]*", s_Incomplete)},
     {"NoNetworkType", [](auto& h) { h->setNetworkType(""); }, gives("[U][S][V][][T][A]*", s_Incomplete)},
     {"NoAddressType", [](auto& h) { h->setAddressType(""); }, gives("[U][S][V][N][][A]*", s_Incomplete)},
     {"NoAddress", [](auto& h) { h->setAddress(""); }, gives("[U][S][V][N][T][]*", s_Incomplete)}});

} // namespace
