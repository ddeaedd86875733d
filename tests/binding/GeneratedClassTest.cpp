// The driver and the metadata together, through the small generated classes of
// GeneratedTestClasses.h: round trips, every option of the context, and the failures
// with their kinds and paths.

#include <gtest/gtest.h>

#include "ExceptionAssert.h"
#include "GeneratedTestClasses.h"

using namespace VxXmlLib16;
using namespace VxTest;

namespace {

// The root declares the context's aliases in the order of their URIs.
const std::string Declarations = " xmlns=\"urn:t\" xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\" "
                                 "xmlns:o=\"urn:other\"";
const std::string Person = "<person><name>Ann</name></person>";
const std::string Line = "<item id=\"1\"><qty>2</qty></item>";
const std::string Pay = "<card>X</card>";

std::string Basket(const std::string &body) { return "<basket" + Declarations + ">" + body + "</basket>"; }

// A message as it reads once a path was given.
std::string At(const std::string &message, const std::string &path) { return message + "\nPath: " + path; }

CSerializationContext Context()
{
    CSerializationContext context;
    context.SetDefaultNamespaceURI(TestNs);
    context.GetNamespaceAliases().Add("o", "urn:other");
    context.GetNamespaceAliases().Add("xsi", "http://www.w3.org/2001/XMLSchema-instance");
    return context;
}

CSmartPtr<CBasket> Read(const std::string &text, const CSerializationContext &context = Context())
{
    CSmartPtr<CBasket> basket = new CBasket();
    basket->FromXml(text.c_str(), context);
    return basket;
}

std::string Write(const CXmlObjectBase &object, const CSerializationContext &context = Context())
{
    return object.ToXml(false, false, EOLType_LF, context);
}

} // namespace

TEST(GeneratedClass, RoundTripKeepsEveryKindOfChild)
{
    const std::string text = Basket("<person o:flag=\"1\"><name>Ann</name><age>7</age></person>"
                                    "<item id=\"1\" unit=\"inch\" o:kind=\"red\"><qty>2</qty><note/>"
                                    "<color>green</color></item><item id=\"2\"><qty>5</qty><note>fragile</note></item>"
                                    "<cash>12.5</cash><memo xsi:nil=\"true\"/>");
    // The enumeration attribute is in the wrong namespace and only read while namespaces
    // are ignored; it is written back in its own.
    CSerializationContext reading = Context();
    reading.SetIgnoreNamespaces(true);
    CSmartPtr<CBasket> basket = Read(text, reading);
    std::string expected = text;
    expected.replace(expected.find("o:kind"), 6, "xmlns:AA=\"urn:t\" AA:kind");
    EXPECT_EQ(expected, Write(*basket));
    // An empty element reads as its default.
    EXPECT_EQ("none", basket->Lines()->Item(0)->Property(CItem::Note).GetString());

    // Formatted output with CR LF reads back to the same unformatted text.
    EXPECT_EQ(expected, Write(*Read(basket->ToXml(true, true, EOLType_CRLF, Context()))));

    // Reading again replaces what the object held.
    basket->FromXml(Basket(Person + Line + Line + Pay).c_str(), Context());
    EXPECT_EQ(2, basket->Lines()->GetCount());
    EXPECT_FALSE(basket->Child<CPerson>(CBasket::Owner)->Property(CPerson::Age).IsValid());
}

TEST(GeneratedClass, UnknownElementsAndAttributes)
{
    CSerializationContext skipping = Context();
    skipping.SetIgnoreUnknownElements(true);
    const std::string stranger = Basket("<zzz/>" + Person + Line + Pay + "<memo><text>t</text></memo><zzz/>");
    EXPECT_EQ("t", Read(stranger, skipping)->Child<CNote>(CBasket::Memo)->Property(CNote::Text).GetString());
    // A mandatory child is searched for up to the last sibling.
    EXPECT_TRUE(Throws<CVxException>([&] { Read(Basket("<zzz/>" + Line + Pay), skipping); },
                                     At("Failed to find the required child element [person].", "/basket")));

    // In an all group a trailing stranger stays unread; in a choice the round moves on.
    // The fault arises as a validation fault with a path and leaves as a plain exception.
    const std::string allTrailing = Basket("<person><name>A</name><zzz/></person>" + Line + Pay);
    EXPECT_TRUE(Throws<CVxException>([&] { Read(allTrailing); },
                                     At("Failed read all the elements held within the element [person]. The "
                                        "unexpected element [zzz] remains un processed",
                                        "/basket/person")));
    EXPECT_NO_THROW(Read(allTrailing, skipping));
    CSmartPtr<CPick> pick = new CPick();
    pick->FromXml("<pick xmlns=\"urn:t\"><zzz/><person><name>A</name></person></pick>", skipping);
    EXPECT_EQ(1, pick->Property(CPick::People).GetXmlCollection()->GetCount());

    const std::string attribute = Basket(Person + "<item id=\"1\" bogus=\"x\"><qty>2</qty></item>" + Pay);
    CSerializationContext dropping = Context();
    dropping.SetIgnoreUnknownAttributes(true);
    EXPECT_NO_THROW(Read(attribute, dropping));
    // An attribute on a primitive element is unknown too, and so is one in the target
    // namespace for a ##other wildcard.
    const std::pair<std::string, const char *> unknown[] = {
        {attribute, "/basket/item/@bogus"},
        {Basket(Person + "<item id=\"1\"><qty a=\"1\">2</qty></item>" + Pay), "/basket/item/qty/@a"},
        {Basket("<person xmlns:o=\"urn:t\" o:x=\"1\"><name>A</name></person>" + Line + Pay), "/basket/person/@x"}};
    for (const auto &[text, path] : unknown)
        EXPECT_TRUE(Throws<CVxException>([&] { Read(text); }, At("Unexpected Attribute found.", path)));
}

TEST(GeneratedClass, ReadingFailuresCarryTheirPathOnce)
{
    const std::string noQty = Basket(Person + "<item id=\"1\"/>" + Pay);
    EXPECT_TRUE(Throws<CVxException>([&] { Read(noQty); },
                                     At("Failed to find the required child element [qty].", "/basket/item")));
    CSerializationContext lenient = Context();
    lenient.SetIgnoreMissingMandatoryElements(true);
    EXPECT_NO_THROW(Read(noQty, lenient));

    // A pseudo group with mandatory content that finds nothing.
    EXPECT_TRUE(Throws<CVxException>([&] { Read(Basket(Person + Line)); },
                                     At("Failed to find the required child element [payment].", "/basket")));
    // Faults without a path get the element's path in a wrapper.
    EXPECT_EQ((Levels{"Exception: " + At("Failed to process the element.", "/basket/person"),
                      "Validation: Failed to find the mandatory element [name]."}),
              Chain([&] { Read(Basket("<person><age>1</age></person>" + Line + Pay)); }));
    EXPECT_EQ((Levels{"Exception: " + At("Failed to process the element.", "/basket/item"),
                      "Validation: Failed to find the required Attribute [id]."}),
              Chain([&] { Read(Basket(Person + "<item><qty>2</qty></item>" + Pay)); }));

    // An enumeration text goes to the generated function as it stands, spaces and all.
    EXPECT_EQ((Levels{"Exception: " + At("Failed to process the element.", "/basket/item"),
                      "InvalidValue: Invalid Color [ red]"}),
              Chain([&] { Read(Basket(Person + "<item id=\"1\"><qty>1</qty><color> red</color></item>" + Pay)); }));

    EXPECT_TRUE(Throws<CVxException>(
        [&] { Read(Basket(Person + "<item id=\"1\" xsi:nil=\"true\"><qty>1</qty></item>" + Pay)); },
        At("Invalid use of 'nil' attribute in non-nillable element.", "/basket/item")));
    EXPECT_TRUE(
        Throws<CVxException>([&] { Read(Basket(Person + "<item id=\"1\"><qty xsi:nil=\"1\"/></item>" + Pay)); },
                             At("Invalid use of 'nil' attribute in non-nillable element.", "/basket/item/qty")));
    EXPECT_TRUE(Throws<CVxException>([&] { Read(Basket(Person + Line + Pay + "<memo xsi:nil=\"yes\"/>")); },
                                     At("Unexpected Value [yes] for 'nil' Attribute found.", "/basket/memo/xsi:@nil")));
    // A nil class reads no content.
    CSmartPtr<CBasket> read = Read(Basket(Person + Line + Pay + "<memo xsi:nil=\"TRUE\"><text>t</text></memo>"));
    EXPECT_TRUE(read->Child<CNote>(CBasket::Memo)->IsNil());
    EXPECT_FALSE(read->Child<CNote>(CBasket::Memo)->Property(CNote::Text).IsValid());
}


TEST(GeneratedClass, ChoicesOfCollections)
{
    CSmartPtr<CPick> pick = new CPick();
    EXPECT_EQ((Levels{"Validation: Failed to convert the element [pick] to XML",
                      "Validation: This element is a choice, and as such must have at one (and only one) valid item, "
                      "currently there are none set"}),
              Chain([&] { Write(*pick); }));
    EXPECT_TRUE(Throws<CVxException>([&] { pick->FromXml("<pick xmlns=\"urn:t\"/>", Context()); },
                                     At("No child elements within the element [pick] were populated. The element "
                                        "represents a choice, so one and only one element should be populated. The "
                                        "element contained no sutable child elements",
                                        "/pick")));

    CSerializationContext lenient = Context();
    lenient.SetIgnoreMissingChoice(true);
    EXPECT_EQ("<pick" + Declarations + "/>", Write(*pick, lenient));
    const std::string people = "<person><name>A</name></person><person><name>B</name></person>";
    pick->FromXml(("<pick xmlns=\"urn:t\">" + people + "</pick>").c_str(), Context());
    EXPECT_EQ("<pick" + Declarations + ">" + people + "</pick>", Write(*pick));
    // A second alternative is an unexpected element.
    EXPECT_TRUE(Throws<CVxException>(
        [&] { pick->FromXml(("<pick xmlns=\"urn:t\">" + people + Line + "</pick>").c_str(), Context()); },
        At("Failed read all the elements held within the element [pick]. The unexpected element [item] remains un "
           "processed",
           "/pick")));
}

TEST(GeneratedClass, WritingOptionsAndFailures)
{
    CSmartPtr<CBasket> basket =
        Read(Basket(Person + "<item id=\"1\" unit=\"cm\"><qty>2</qty><note>none</note></item>" + Pay));
    // An optional attribute equal to its default breaks its facet (three letters at
    // least) and is never checked once the default stays out.
    EXPECT_EQ((Levels{"Validation: Failed to convert the element [basket] to XML",
                      "Validation: Failed to convert the element [item] to XML",
                      "Exception: Failed to convert attributes to XML", "InvalidValue: Invalid Value for unit [cm]."}),
              Chain([&] { Write(*basket); }));
    CSerializationContext context = Context();
    context.SetNoOptionalAttributeDefaultOutput(true);
    EXPECT_EQ(Basket(Person + "<item id=\"1\"><qty>2</qty><note/></item>" + Pay), Write(*basket, context));
    context.SetWriteDefaultElementValues(true);
    EXPECT_NE(std::string::npos, Write(*basket, context).find("<note>none</note>"));

    // An empty collection writes nothing once its count is allowed.
    basket->Lines()->Clear();
    EXPECT_EQ((Levels{"Validation: Failed to convert the element [basket] to XML",
                      "Validation: The Minimum number of [item] elements allowed in this collection is 1"}),
              Chain([&] { Write(*basket, context); }));
    context.SetIgnoreInvalidCollectionCounts(true);
    EXPECT_EQ(std::string::npos, Write(*basket, context).find("item"));

    basket->Property(CBasket::Owner).SetXmlObject(nullptr);
    EXPECT_EQ((Levels{"Validation: Failed to convert the element [basket] to XML",
                      "InvalidParam: The Property [person] is mandatory, it may not be NULL"}),
              Chain([&] { Write(*basket, context); }));
}

TEST(GeneratedClass, RootPrologueAttributesAndSchema)
{
    CSmartPtr<CItem> item = new CItem();
    item->Property(CItem::Id).SetI4(4);
    item->Property(CItem::Qty).SetI4(1);
    CSerializationContext context = Context();
    context.GetProcessingInstructions().push_back("pi one");
    context.GetAdditionalRootAttributes()->Add("schemaLocation", "urn:t t.xsd",
                                               "http://www.w3.org/2001/XMLSchema-instance");
    context.SetInLineSchema("<schema/>");
    // The instruction is written as it stands; the schema lands inside the open start tag.
    EXPECT_EQ("pi one\n\n<item" + Declarations +
                  " xsi:schemaLocation=\"urn:t t.xsd\" id=\"4\" \n<schema/>\n><qty>1</qty></item>",
              Write(*item, context));
    // A location attribute is read over silently on any element.
    const std::string located = "<item xsi:schemaLocation=\"urn:t t.xsd\" id=\"1\"><qty>1</qty></item>";
    EXPECT_NO_THROW(Read(Basket(Person + located + Pay)));
}

TEST(GeneratedClass, CleanMetaDataLeavesNoDanglingTables)
{
    vd::CParentElementInfo *info = ParentInfo(vd::XmlElementGroupType_Sequence, vd::XmlElementType_Element, "x");
    vd::CElementInfo **elements = Table<vd::CElementInfo>({new vd::CElementInfoSeqPrimCol("p", "", 0)});
    vd::CAttributeInfo **attributes = Table<vd::CAttributeInfo>({});
    CXmlGeneratedClass::CleanMetaData(info, elements, attributes);
    EXPECT_EQ(nullptr, info);
    EXPECT_EQ(nullptr, elements);
    EXPECT_EQ(nullptr, attributes);
}
