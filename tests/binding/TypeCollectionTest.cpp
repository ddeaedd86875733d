#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

#include "ElementInfo.h"
#include "ExceptionAssert.h"
#include "GeneratedTestClasses.h"
#include "TypeCollections.h"
#include "XmlDocument.h"

using namespace VxXmlLib16;
using namespace VxXmlLib16Data;
using VxTest::Throws;

namespace {

using Rule = CWhitespaceUtils::WhitespaceRule;

// Opens the protected tree operations, as the metadata of a generated class would use them.
template <class Col>
class Open : public Col
{
public:
    explicit Open(const char *maxInclusive = "", int minOccurs = 0)
        : Col("v", "urn:t", minOccurs, -1, "", -1, -1, "", maxInclusive, "", "", -1, -1, -1,
              CWhitespaceUtils::WhitespaceRule_Collapse, nullptr)
    {
    }
    using Col::FromXml_Int;
    using Col::ToXml_Int;
};

// Two canonical texts per member: each reads back and writes out unchanged.
template <class Col>
const std::array<const char *, 2> kTexts;
template <> const std::array<const char *, 2> kTexts<ChexBinaryCol> = {"0AFF", "C0DE"};
template <> const std::array<const char *, 2> kTexts<Cbase64BinaryCol> = {"AAEC", "/+8="};
template <> const std::array<const char *, 2> kTexts<Ci1Col> = {"-5", "127"};
template <> const std::array<const char *, 2> kTexts<Ci2Col> = {"-32768", "7"};
template <> const std::array<const char *, 2> kTexts<Ci4Col> = {"-2147483648", "42"};
template <> const std::array<const char *, 2> kTexts<Ci8Col> = {"-9223372036854775808", "1"};
template <> const std::array<const char *, 2> kTexts<Cui1Col> = {"255", "0"};
template <> const std::array<const char *, 2> kTexts<Cui2Col> = {"65535", "3"};
template <> const std::array<const char *, 2> kTexts<Cui4Col> = {"4294967295", "9"};
template <> const std::array<const char *, 2> kTexts<Cui8Col> = {"18446744073709551615", "8"};
template <> const std::array<const char *, 2> kTexts<Cr4Col> = {"1.5", "-INF"};
template <> const std::array<const char *, 2> kTexts<Cr8Col> = {"-2.25", "NaN"};
template <> const std::array<const char *, 2> kTexts<CdurationCol> = {"P1DT2H", "-P3Y"};
template <> const std::array<const char *, 2> kTexts<CyearMonthCol> = {"2024-02", "-0044-03"};
template <> const std::array<const char *, 2> kTexts<CmonthDayCol> = {"--02-29", "--12-31"};
template <> const std::array<const char *, 2> kTexts<CyearCol> = {"2024", "1999"};
template <> const std::array<const char *, 2> kTexts<CmonthCol> = {"--02", "--12"};
template <> const std::array<const char *, 2> kTexts<CdayCol> = {"---09", "---31"};
template <> const std::array<const char *, 2> kTexts<CdateCol> = {"2024-02-29", "1999-12-31Z"};
template <> const std::array<const char *, 2> kTexts<CdatetimeCol> = {"2024-02-29T10:20:30", "2000-01-01T00:00:00Z"};
template <> const std::array<const char *, 2> kTexts<CtimeCol> = {"10:20:30Z", "23:59:59"};
template <> const std::array<const char *, 2> kTexts<CstringCol> = {"a &lt; b", "x"};
template <> const std::array<const char *, 2> kTexts<CbooleanCol> = {"true", "false"};
template <> const std::array<const char *, 2> kTexts<CdecimalCol> = {"-20.25", "123456789012345678901234567890.5"};
template <> const std::array<const char *, 2> kTexts<CintegerCol> = {"-123456789012345678901234567890", "0"};

// Records events as "Add", "AddComplete", "Change", "Remove:0", "RemoveComplete:null".
class Recorder : public IEventSink
{
public:
    void OnEvent(CXmlObjectBase *, MsgType type, void *data) override
    {
        static const char *names[] = {"Change", "Add", "AddComplete", "Remove", "RemoveComplete"};
        std::string entry = names[type];
        if (type == MsgType_CollectionRemove || type == MsgType_CollectionRemoveComplete)
            entry += data ? ":" + std::to_string(*static_cast<int *>(data)) : ":null";
        events.push_back(entry);
    }
    std::vector<std::string> events;
};
using Events = std::vector<std::string>;

// Reads "<r xmlns='urn:t'>" + items + "<w/></r>"; gives the name where reading stopped.
template <class Col>
std::string Read(Open<Col> &col, const std::string &items)
{
    CXmlDocument document;
    document.LoadXml(("<r xmlns='urn:t'>" + items + "<w/></r>").c_str());
    CXmlElement *root = document.GetDocumentElement();
    return col.FromXml_Int(root, root->GetFirstElement(), CSerializationContext(), false)->GetLocalName();
}

// A generated class "h" whose only content is the repeating element "v", of the given group.
template <class Col, XmlElementGroupType Group, class Entry>
class CHolder final : public VxTest::CTestObject
{
public:
    explicit CHolder(const char *format = nullptr, Rule rule = CWhitespaceUtils::WhitespaceRule_Collapse)
        : CTestObject(Tables(), 1), m_rule(rule), m_format(format)
    {
        Init();
    }

protected:
    void CreateChildren() override
    {
        Property(0).SetXmlCollection(
            new Col("v", VxTest::TestNs, 0, -1, "", -1, -1, "", "", "", "", -1, -1, -1, m_rule, m_format));
    }

private:
    static const VxTest::CTestTables &Tables()
    {
        static const VxTest::CTestTables tables{
            new CParentElementInfo(Group, XmlElementType_Element, "h", VxTest::TestNs, true, false, -1,
                                   ItemType_Invalid, nullptr, false),
            new CElementInfo *[2] { new Entry("v", VxTest::TestNs, 0), nullptr }, new CAttributeInfo *[1] { nullptr }};
        return tables;
    }

    Rule m_rule;
    const char *m_format;
};

template <class Col>
using CSequenceHolder = CHolder<Col, XmlElementGroupType_Sequence, CElementInfoSeqPrimCol>;
template <class Col>
using CChoiceHolder = CHolder<Col, XmlElementGroupType_Choice, CElementInfoChoicePrimCol>;

template <class Col>
class TypeCollection : public ::testing::Test
{
};
using Members = ::testing::Types<ChexBinaryCol, Cbase64BinaryCol, Ci1Col, Ci2Col, Ci4Col, Ci8Col, Cui1Col, Cui2Col,
                                 Cui4Col, Cui8Col, Cr4Col, Cr8Col, CdurationCol, CyearMonthCol, CmonthDayCol, CyearCol,
                                 CmonthCol, CdayCol, CdateCol, CdatetimeCol, CtimeCol, CstringCol, CbooleanCol,
                                 CdecimalCol, CintegerCol>;
TYPED_TEST_SUITE(TypeCollection, Members);

// Events and index checks live once in the shared collection template: a few members show them.
template <class Col>
class TypeCollectionTemplate : public ::testing::Test
{
};
using Representatives = ::testing::Types<Ci4Col, CstringCol, CdatetimeCol>;
TYPED_TEST_SUITE(TypeCollectionTemplate, Representatives);

} // namespace

TYPED_TEST(TypeCollection, RoundTripsThroughGeneratedSequenceAndChoice)
{
    const auto &texts = kTexts<TypeParam>;
    const std::string items = std::string("<v>") + texts[0] + "</v><v>" + texts[1] + "</v>";
    CSmartPtr<CSequenceHolder<TypeParam>> sequence(new CSequenceHolder<TypeParam>);
    CSmartPtr<CChoiceHolder<TypeParam>> choice(new CChoiceHolder<TypeParam>);
    sequence->FromXml(("<h xmlns='urn:t'><v>" + std::string(texts[0]) + "</v><v>\t" + texts[1] + " </v></h>").c_str());
    choice->FromXml(sequence->ToXml(false, false).c_str());
    CSerializationContext plain;
    plain.SetDefaultNamespaceURI("urn:t");
    EXPECT_EQ("<h xmlns=\"urn:t\">" + items + "</h>", choice->ToXml(false, false, EOLType_LF, plain));
}

TYPED_TEST(TypeCollectionTemplate, EventsAndIndexRules)
{
    Recorder recorder; // outlives the collection
    CSmartPtr<Open<TypeParam>> col(new Open<TypeParam>);
    const auto &texts = kTexts<TypeParam>;
    EXPECT_EQ("w", Read(*col, std::string("<v>") + texts[0] + "</v><v> " + texts[1] + "\n</v>"));
    const auto a = col->Item(0), b = col->Item(1);
    col->AddEventListener(&recorder);

    // The Add event goes out before the index test; Remove reports the real index.
    EXPECT_TRUE(Throws<CVxInvalidParamException>([&] { col->AddAt(3, a); }, "Index out of range"));
    EXPECT_TRUE(Throws<CVxInvalidParamException>([&] { col->Remove(2); }, "Index 2 is out of range, use 0 - 2"));
    EXPECT_TRUE(Throws<CVxInvalidParamException>([&] { col->Item(-1); }, "Index -1 is out of range, use 0 - 2"));
    EXPECT_EQ((Events{"Add", "Remove:2"}), recorder.events);

    recorder.events.clear();
    col->AddAt(1, b); // a b b
    col->AddAt(0, b); // b a b b
    col->Remove(3);
    using Values = std::vector<typename TypeParam::ValueType>;
    EXPECT_EQ((Values{b, a, b}), Values(col->begin(), col->end()));
    col->Clear();
    EXPECT_TRUE(Throws<CVxInvalidParamException>([&] { col->Remove(0); }, "Index 0 is out of range, use 0 - 0"));
    EXPECT_EQ((Events{"Add", "AddComplete", "Change", "Add", "AddComplete", "Change", "Remove:3", "RemoveComplete:3",
                      "Change", "Remove:0", "RemoveComplete:0", "Change", "Remove:0", "RemoveComplete:0", "Change",
                      "Remove:0", "RemoveComplete:0", "Change", "Remove:0"}),
              recorder.events);
}

TEST(TypeCollectionChecks, FailureOnAddOrReadLeavesListUnchangedWithoutEvents)
{
    Recorder recorder;
    CSmartPtr<Open<Ci4Col>> col(new Open<Ci4Col>("10"));
    col->Add(10);
    col->AddEventListener(&recorder);
    EXPECT_TRUE(Throws<CVxInvalidValueException>([&] { col->AddAt(7, 11); }, "Invalid Value for v [11]"));
    // Reading converts first, so a facet failure comes from Add, a bad text from the conversion.
    EXPECT_TRUE(Throws<CVxInvalidValueException>([&] { Read(*col, "<v>9</v><v>12</v>"); }, "Invalid Value for v [12]"));
    EXPECT_THROW(Read(*col, "<v>x</v>"), CVxInvalidValueException);
    EXPECT_EQ((std::vector<std::int32_t>{10, 9}), std::vector<std::int32_t>(col->begin(), col->end()));

    // Each date collection takes only its own date type.
    const CDateTime year(CDateTime::dt_gYear);
    const auto refused = [&](CdatetimeBaseCol &&dates, const std::string &type) {
        dates.AddEventListener(&recorder);
        return Throws<CVxInvalidParamException>([&] { dates.AddAt(0, year); },
                                                "Dates added to this collection must be of type " + type);
    };
    EXPECT_TRUE(refused(Open<CdatetimeCol>(), "dt_dateTime"));
    EXPECT_TRUE(refused(Open<CdateCol>(), "dt_date"));
    EXPECT_TRUE(refused(Open<CyearMonthCol>(), "dt_gYearMonth"));
    EXPECT_TRUE(refused(Open<CtimeCol>(), "dt_time"));
    EXPECT_TRUE(refused(Open<CmonthDayCol>(), "dt_gMonthDay"));
    // Of all the values above only the 9 got in.
    EXPECT_EQ((Events{"Add", "AddComplete", "Change"}), recorder.events);
    // Date bounds are read as the collection's own type.
    Open<CdateCol> dates("2000-01-01");
    EXPECT_TRUE(Throws<CVxInvalidValueException>([&] { Read(dates, "<v>2000-01-02</v>"); },
                                                  "Invalid Value for v [2000-01-02]."));
}

TEST(TypeCollectionOptions, CountFormatOverrideAndWhitespaceRule)
{
    // No writer: the count is checked before anything is written, and an empty list writes nothing.
    CSmartPtr<Open<Ci4Col>> required(new Open<Ci4Col>("", 1));
    CSerializationContext context;
    EXPECT_TRUE(Throws<CVxValidationException>([&] { required->ToXml_Int(nullptr, false, "urn:t", context, false); },
                                               "The Minimum number of [v] elements allowed in this collection is 1"));
    context.SetIgnoreInvalidCollectionCounts(true);
    required->ToXml_Int(nullptr, false, "urn:t", context, false);

    // Through a generated class: the format override on writing, the whitespace rule on reading.
    CSerializationContext plain;
    plain.SetDefaultNamespaceURI("urn:t");
    const auto roundTrip = [&plain](CXmlObjectBase &holder, const char *items) {
        holder.FromXml((std::string("<h xmlns='urn:t'>") + items + "</h>").c_str());
        return holder.ToXml(false, false, EOLType_LF, plain);
    };
    CSmartPtr<CSequenceHolder<Cr8Col>> reals(new CSequenceHolder<Cr8Col>("%.2f"));
    CSmartPtr<CSequenceHolder<CdecimalCol>> decimals(new CSequenceHolder<CdecimalCol>("3"));
    CSmartPtr<CSequenceHolder<CstringCol>> kept(
        new CSequenceHolder<CstringCol>(nullptr, CWhitespaceUtils::WhitespaceRule_Preserve));
    EXPECT_EQ("<h xmlns=\"urn:t\"><v>1.50</v></h>", roundTrip(*reals, "<v> 1.5 </v>"));
    EXPECT_EQ("<h xmlns=\"urn:t\"><v>1.500</v></h>", roundTrip(*decimals, "<v>1.5</v>"));
    EXPECT_EQ("<h xmlns=\"urn:t\"><v> a  b </v></h>", roundTrip(*kept, "<v> a  b </v>"));
}
