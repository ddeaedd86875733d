// The driver and the metadata together, through the small generated classes of
// GeneratedTestClasses.h: round trips, every option of the context, and the failures
// with their kinds and paths.

#include <gtest/gtest.h>

#include <functional>

#include "ExceptionAssert.h"
#include "GeneratedTestClasses.h"

using namespace VxXmlLib16;
using namespace VxTest;

namespace {

// The root declares the context's aliases in the order of their URIs.
const std::string Declarations = " xmlns=\"urn:t\" xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\" "
                                 "xmlns:o=\"urn:other\"";
const std::string Open = "<basket" + Declarations + ">";
const std::string Person = "<person><name>Ann</name></person>";
const std::string Line = "<item id=\"1\"><qty>2</qty></item>";
const std::string Pay = "<card>X</card>";

std::string Basket(const std::string &body) { return Open + body + "</basket>"; }

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

// The caught exception, for a look at its chain.
CVxException Caught(const std::function<void()> &action)
{
    try {
        action();
    } catch (const CVxException &e) {
        return e;
    }
    ADD_FAILURE() << "no exception";
    return CVxException();
}

} // namespace

TEST(GeneratedClass, RoundTripKeepsEveryKindOfChild)
{
    const std::string text =
        Basket("<person o:flag=\"1\"><name>Ann</name><age>7</age></person>"
               "<item id=\"1\" unit=\"inch\" o:kind=\"red\"><qty>2</qty><note/><color>green</color></item>"
               "<item id=\"2\"><qty>5</qty><note>fragile</note></item>"
               "<cash>12.5</cash>"
               "<memo xsi:nil=\"true\"/>"
               "<shipment xsi:type=\"courier\"><date>2024-01-02</date><carrier>DHL</carrier></shipment>"
               "<price cur=\"EUR\">9.99</price>"
               "<o:extra a=\"b\">text</o:extra>");
    // The enumeration attribute is in the wrong namespace and only read while namespaces
    // are ignored; it is written back in its own.
    CSerializationContext reading = Context();
    reading.SetIgnoreNamespaces(true);
    CSmartPtr<CBasket> basket = Read(text, reading);
    std::string expected = text;
    expected.replace(expected.find("o:kind"), 1, "");
    expected.insert(expected.find(":kind"), "AA");
    expected.insert(expected.find("AA:kind"), "xmlns:AA=\"urn:t\" ");
    EXPECT_EQ(expected, Write(*basket));

    // What the entries read.
    CPerson *person = basket->Child<CPerson>(CBasket::Owner);
    EXPECT_EQ("Ann", person->Property(CPerson::Name).GetString());
    EXPECT_EQ(7, person->Property(CPerson::Age).GetI4());
    CItem *first = basket->Lines()->Item(0);
    EXPECT_EQ("none", first->Property(CItem::Note).GetString()); // empty element reads as the default
    EXPECT_EQ(Color_red, first->Property(CItem::Kind).GetI4());
    EXPECT_EQ(Color_green, first->Property(CItem::ColorProperty).GetI4());
    EXPECT_TRUE(basket->Child<CNote>(CBasket::Memo)->IsNil());
    CShipment *shipment = basket->Child<CShipment>(CBasket::ShipmentProperty);
    EXPECT_NE(nullptr, dynamic_cast<CCourier *>(shipment));
    EXPECT_EQ("shipment", shipment->Name());
    EXPECT_EQ("9.99", basket->Child<CPrice>(CBasket::PriceProperty)->Property(CPrice::Value).ToString(nullptr));
    EXPECT_FALSE(basket->Child<CPayment>(CBasket::Pay)->Property(CPayment::Card).IsValid());

    // Formatted output reads back to the same unformatted text.
    CSmartPtr<CBasket> again = Read(basket->ToXml(true, true, EOLType_CRLF, Context()));
    EXPECT_EQ(expected, Write(*again));
}

TEST(GeneratedClass, ReadingReplacesContentAndTakesAllGroupsInAnyOrder)
{
    CSmartPtr<CBasket> basket = Read(Basket("<person><age>3</age><name>Bo</name></person>" + Line + Pay));
    basket->FromXml(Basket(Person + Line + Line + Pay).c_str(), Context());
    EXPECT_EQ(2, basket->Lines()->GetCount());
    EXPECT_FALSE(basket->Child<CPerson>(CBasket::Owner)->Property(CPerson::Age).IsValid());
}

TEST(GeneratedClass, UnknownElementsAndAttributes)
{
    const std::string stranger = Basket("<zzz/>" + Person + Line + Pay + "<price>1</price><zzz/>");
    EXPECT_TRUE(Throws<CVxException>([&] { Read(stranger); },
                                     At("Failed to find the required child element [person].", "/basket")));
    const std::string leftover = Basket(Person + Line + Pay + "<zzz/>");
    const CVxException e = Caught([&] { Read(leftover); });
    EXPECT_EQ(At("Failed read all the elements held within the element [basket]. The unexpected element [zzz] "
                 "remains un processed",
                 "/basket"),
              e.GetMessage());
    // The fault keeps its kind where it arose and becomes a plain exception on its way out.
    EXPECT_EQ(typeid(CVxException), typeid(e));

    CSerializationContext skipping = Context();
    skipping.SetIgnoreUnknownElements(true);
    CSmartPtr<CBasket> basket = Read(stranger, skipping);
    EXPECT_EQ(1, basket->Lines()->GetCount());
    EXPECT_EQ("1", basket->Child<CPrice>(CBasket::PriceProperty)->Property(CPrice::Value).ToString(nullptr));

    // In an all group a trailing stranger stays unread; in a choice the round moves on.
    const std::string allTrailing = Basket("<person><name>A</name><zzz/></person>" + Line + Pay);
    EXPECT_EQ("/basket/person", Caught([&] { Read(allTrailing); }).GetPath());
    EXPECT_NO_THROW(Read(allTrailing, skipping));
    CSmartPtr<CPick> pick = new CPick();
    pick->FromXml("<pick xmlns=\"urn:t\"><zzz/><person><name>A</name></person></pick>", skipping);
    EXPECT_EQ(1, pick->Property(CPick::People).GetXmlCollection()->GetCount());

    const std::string attribute = Basket(Person + "<item id=\"1\" bogus=\"x\"><qty>2</qty></item>" + Pay);
    EXPECT_EQ("/basket/item/@bogus", Caught([&] { Read(attribute); }).GetPath());
    CSerializationContext dropping = Context();
    dropping.SetIgnoreUnknownAttributes(true);
    EXPECT_NO_THROW(Read(attribute, dropping));
    // An attribute on a primitive element is unknown too.
    EXPECT_EQ(At("Unexpected Attribute found.", "/basket/item/qty/@a"),
              Caught([&] { Read(Basket(Person + "<item id=\"1\"><qty a=\"1\">2</qty></item>" + Pay)); })
                  .GetMessage());
}

TEST(GeneratedClass, MissingMandatoryContent)
{
    const std::string noQty = Basket(Person + "<item id=\"1\"/>" + Pay);
    const CVxException e = Caught([&] { Read(noQty); });
    EXPECT_EQ(At("Failed to find the required child element [qty].", "/basket/item"), e.GetMessage());
    CSerializationContext lenient = Context();
    lenient.SetIgnoreMissingMandatoryElements(true);
    EXPECT_NO_THROW(Read(noQty, lenient));

    // A pseudo group with mandatory content that finds nothing.
    EXPECT_TRUE(Throws<CVxException>([&] { Read(Basket(Person + Line)); },
                                     At("Failed to find the required child element [payment].", "/basket")));
    // Faults without a path get the element's path in a wrapper.
    const CVxException all = Caught([&] { Read(Basket("<person><age>1</age></person>" + Line + Pay)); });
    EXPECT_EQ(At("Failed to process the element.", "/basket/person"), all.GetMessage());
    EXPECT_EQ("Failed to find the mandatory element [name].", all.GetInnerException()->GetMessage());
    const CVxException attribute = Caught([&] { Read(Basket(Person + "<item><qty>2</qty></item>" + Pay)); });
    EXPECT_EQ("/basket/item", attribute.GetPath());
    EXPECT_EQ("Failed to find the required Attribute [id].", attribute.GetInnerException()->GetMessage());
}

TEST(GeneratedClass, ChoicesOfCollections)
{
    CSmartPtr<CPick> pick = new CPick();
    EXPECT_EQ("Failed to convert the element [pick] to XML", Caught([&] { Write(*pick); }).GetMessage());
    EXPECT_EQ("This element is a choice, and as such must have at one (and only one) valid item, currently there are "
              "none set",
              Caught([&] { Write(*pick); }).GetInnerException()->GetMessage());
    const CVxException e = Caught([&] { pick->FromXml("<pick xmlns=\"urn:t\"/>", Context()); });
    EXPECT_EQ(At("No child elements within the element [pick] were populated. The element represents a choice, so "
                 "one and only one element should be populated. The element contained no sutable child elements",
                 "/pick"),
              e.GetMessage());

    CSerializationContext lenient = Context();
    lenient.SetIgnoreMissingChoice(true);
    EXPECT_EQ("<pick" + Declarations + "/>", Write(*pick, lenient));
    pick->FromXml("<pick xmlns=\"urn:t\"><person><name>A</name></person><person><name>B</name></person></pick>",
                  Context());
    EXPECT_EQ("<pick" + Declarations + "><person><name>A</name></person><person><name>B</name></person></pick>",
              Write(*pick));
    // A second alternative is an unexpected element.
    EXPECT_EQ(At("Failed read all the elements held within the element [pick]. The unexpected element [item] "
                 "remains un processed",
                 "/pick"),
              Caught([&] {
                  pick->FromXml("<pick xmlns=\"urn:t\"><person><name>A</name></person><item id=\"1\"><qty>1</qty>"
                                "</item></pick>",
                                Context());
              }).GetMessage());
}

TEST(GeneratedClass, WritingOptions)
{
    CSmartPtr<CBasket> basket = Read(Basket(Person + "<item id=\"1\" unit=\"cm\"><qty>2</qty><note>none</note></item>" +
                                            Pay + "<shipment xsi:type=\"courier\"><date>d</date><carrier>c</carrier>"
                                                  "</shipment>"));
    // An optional attribute equal to its default breaks its facet (three letters at
    // least) and is never checked once the default stays out.
    EXPECT_EQ("Failed to convert the element [basket] to XML", Caught([&] { Write(*basket); }).GetMessage());
    CSerializationContext context = Context();
    context.SetNoOptionalAttributeDefaultOutput(true);
    context.SetWriteTypeAttribute(false);
    EXPECT_EQ(Basket(Person + "<item id=\"1\"><qty>2</qty><note/></item>" + Pay +
                     "<shipment><date>d</date><carrier>c</carrier></shipment>"),
              Write(*basket, context));
    context.SetWriteDefaultElementValues(true);
    EXPECT_NE(std::string::npos, Write(*basket, context).find("<note>none</note>"));

    // An empty collection writes nothing once its count is allowed.
    basket->Lines()->Clear();
    EXPECT_EQ("The Minimum number of [item] elements allowed in this collection is 1",
              Caught([&] { Write(*basket, context); }).GetInnerException()->GetMessage());
    context.SetIgnoreInvalidCollectionCounts(true);
    EXPECT_EQ(std::string::npos, Write(*basket, context).find("item"));
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
    const std::string text = Write(*item, context);
    EXPECT_LT(text.find("pi one"), text.find("<item"));
    EXPECT_LT(text.find("xsi:schemaLocation"), text.find("id=\"4\""));
    EXPECT_LT(text.find("id=\"4\""), text.find("<schema/>"));
    EXPECT_LT(text.find("<schema/>"), text.find("<qty>"));
    // The location attribute is read over silently.
    CSmartPtr<CItem> back = new CItem();
    EXPECT_NO_THROW(back->FromXml("<item xmlns=\"urn:t\" xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\" "
                                  "xsi:schemaLocation=\"urn:t t.xsd\" id=\"1\"><qty>1</qty></item>",
                                  context));
}

TEST(GeneratedClass, ReadingFailuresCarryTheirPathOnce)
{
    // A property setter's fault gets the element's path.
    CSmartPtr<CBasket> basket = new CBasket();
    basket->Lines()->Add(new CItem());
    const CVxException conversion = Caught([&] { Read(Basket(Person + "<item id=\"1\"><qty>x</qty></item>" + Pay)); });
    EXPECT_EQ(At("Failed to process the element.", "/basket/item"), conversion.GetMessage());
    EXPECT_EQ("/basket/item", conversion.GetPath());
    EXPECT_EQ(typeid(CVxException), typeid(conversion));
    ASSERT_NE(nullptr, conversion.GetInnerException());
    EXPECT_EQ("", conversion.GetInnerException()->GetPath());

    const std::string nilItem = Basket(Person + "<item id=\"1\" xsi:nil=\"true\"><qty>1</qty></item>" + Pay);
    const CVxException nonNillable = Caught([&] { Read(nilItem); });
    EXPECT_EQ(At("Invalid use of 'nil' attribute in non-nillable element.", "/basket/item"), nonNillable.GetMessage());
    const CVxException badNil = Caught([&] { Read(Basket(Person + Line + Pay + "<memo xsi:nil=\"yes\"/>")); });
    EXPECT_EQ(At("Unexpected Value [yes] for 'nil' Attribute found.", "/basket/memo/xsi:@nil"), badNil.GetMessage());
    CSmartPtr<CBasket> read = Read(Basket(Person + Line + Pay + "<memo xsi:nil=\"TRUE\"><text>t</text></memo>"));
    EXPECT_TRUE(read->Child<CNote>(CBasket::Memo)->IsNil());
    EXPECT_FALSE(read->Child<CNote>(CBasket::Memo)->Property(CNote::Text).IsValid());
    // xsi:nil on a primitive element that is not nillable.
    EXPECT_EQ("/basket/item/qty",
              Caught([&] { Read(Basket(Person + "<item id=\"1\"><qty xsi:nil=\"1\"/></item>" + Pay)); }).GetPath());
    // An enumeration text goes to the generated function as it stands, spaces and all.
    const CVxException color =
        Caught([&] { Read(Basket(Person + "<item id=\"1\"><qty>1</qty><color> red</color></item>" + Pay)); });
    ASSERT_NE(nullptr, color.GetInnerException());
    EXPECT_EQ("Invalid Color [ red]", color.GetInnerException()->GetMessage());
    // An attribute in the target namespace is refused by the ##other wildcard.
    EXPECT_EQ("/basket/person/@x",
              Caught([&] { Read(Basket("<person xmlns:o=\"urn:t\" o:x=\"1\"><name>A</name></person>" + Line + Pay)); })
                  .GetPath());
    // A substitution no class fits stays where it was and is left over.
    EXPECT_EQ(At("Failed read all the elements held within the element [basket]. The unexpected element [shipment] "
                 "remains un processed",
                 "/basket"),
              Caught([&] { Read(Basket(Person + Line + Pay + "<shipment xsi:type=\"drone\"/>")); }).GetMessage());
}

TEST(GeneratedClass, SetterFaultsAreWrappedWithThePath)
{
    const char *text = "<item xmlns=\"urn:t\" id=\"1\"><qty>2</qty></item>";
    CSmartPtr<CItem> item = new CItem();
    item->m_failingSetter = CItem::Id;
    const CVxException attribute = Caught([&] { item->FromXml(text, Context()); });
    EXPECT_EQ(At("Failed to set the property value [1].", "/item/@id"), attribute.GetMessage());
    EXPECT_EQ("Refused by the setter", attribute.GetInnerException()->GetMessage());
    item->m_failingSetter = CItem::Qty;
    const CVxException element = Caught([&] { item->FromXml(text, Context()); });
    EXPECT_EQ(At("Failed to set the property value.", "/item/qty"), element.GetMessage());
}

TEST(GeneratedClass, WritingFailuresGainOneLevelPerElement)
{
    CSmartPtr<CBasket> basket = Read(Basket(Person + Line + Pay));
    basket->Lines()->Item(0)->Property(CItem::Qty).SetI4(0);
    const CVxException facet = Caught([&] { Write(*basket); });
    EXPECT_EQ("Failed to convert the element [basket] to XML", facet.GetMessage());
    const CVxException *inner = facet.GetInnerException();
    ASSERT_NE(nullptr, inner);
    EXPECT_EQ("Failed to convert the element [item] to XML", inner->GetMessage());
    ASSERT_NE(nullptr, inner->GetInnerException());
    EXPECT_EQ(typeid(CVxInvalidValueException), typeid(*inner->GetInnerException()));
    EXPECT_EQ(nullptr, inner->GetInnerException()->GetInnerException());

    basket->Lines()->Item(0)->Property(CItem::Qty).SetI4(1);
    basket->Property(CBasket::Owner).SetXmlObject(nullptr);
    const CVxException missing = Caught([&] { Write(*basket); });
    ASSERT_NE(nullptr, missing.GetInnerException());
    EXPECT_EQ(typeid(CVxInvalidParamException), typeid(*missing.GetInnerException()));
    EXPECT_EQ("The Property [person] is mandatory, it may not be NULL", missing.GetInnerException()->GetMessage());
    // A required attribute with no value fails in its conversion, under the attribute level.
    basket->Property(CBasket::Owner).SetXmlObject(new CPerson());
    basket->Child<CPerson>(CBasket::Owner)->Property(CPerson::Name).SetString("A");
    basket->Lines()->Item(0)->Property(CItem::Id).SetInvalid();
    EXPECT_EQ("Failed to convert attributes to XML",
              Caught([&] { Write(*basket); }).GetInnerException()->GetInnerException()->GetMessage());
}

TEST(GeneratedClass, SettledOddities)
{
    // A collection in an all group is never found, and its Validate is the base's.
    CSmartPtr<CBadAll> bad = new CBadAll();
    const CVxException e = Caught([&] { bad->FromXml("<bad xmlns=\"urn:t\"/>", Context()); });
    ASSERT_NE(nullptr, e.GetInnerException());
    EXPECT_EQ("Not implemented, should never be called", e.GetInnerException()->GetMessage());
    // Only a primitive entry checks facets.
    const vd::CElementInfoSeqEnumOpt entry("e", TestNs, 0, false, ColorToString, ColorFromString, nullptr);
    VxVariant value;
    value.SetI4(1);
    EXPECT_TRUE(Throws<CVxException>([&] { entry.CheckRestriction(value); }, "Cannot CheckRestriction for type: i4"));
}

TEST(GeneratedClass, TableHelpers)
{
    CSmartPtr<CBasket> basket = new CBasket();
    EXPECT_EQ(7, basket->GetClassElementInfoCount());
    CXmlDocument document;
    document.LoadXml("<r xmlns=\"urn:t\"><price/><zz/></r>");
    CXmlElement *child = document.GetDocumentElement()->GetFirstElement();
    EXPECT_TRUE(basket->IsElementInList(CSerializationContext(), child));
    EXPECT_FALSE(basket->IsElementInList(CSerializationContext(), child->GetNextSiblingElement()));

    vd::CParentElementInfo *info = new vd::CParentElementInfo(vd::XmlElementGroupType_Sequence,
                                                              vd::XmlElementType_Element, "x", "", true, false, -1,
                                                              ItemType_Invalid, nullptr, false);
    vd::CElementInfo **elements = new vd::CElementInfo *[2]{new vd::CElementInfoSeqPrimCol("p", "", 0), nullptr};
    vd::CAttributeInfo **attributes = new vd::CAttributeInfo *[1]{nullptr};
    CXmlGeneratedClass::CleanMetaData(info, elements, attributes);
    EXPECT_EQ(nullptr, info);
    EXPECT_EQ(nullptr, elements);
    EXPECT_EQ(nullptr, attributes);
}
