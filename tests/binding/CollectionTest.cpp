#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "ExceptionAssert.h"
#include "Exceptions.h"
#include "PlainObject.h"
#include "SerializationContext.h"
#include "XmlCollection.h"

using namespace VxXmlLib16;

namespace {

class Item : public VxTest::CPlainObject
{
public:
    explicit Item(std::string text, int *destroyed = nullptr) : CPlainObject(destroyed), name(std::move(text)) {}
    const std::string name;
};

// Opens the protected list operations, as a generated collection's facade would.
class ItemCollection : public CXmlCollection
{
public:
    ItemCollection(int minOccurs = 0, int maxOccurs = -1) : CXmlCollection("item", "urn:i", minOccurs, maxOccurs) {}
    using CXmlCollection::AddAfterItem;
    using CXmlCollection::AddBeforeItem;
    using CXmlCollection::AddItemAt;
    using CXmlCollection::AppendItem;
    using CXmlCollection::PrependItem;

    std::string Names() const
    {
        std::string names;
        for (auto it = begin<Item>(); it != end<Item>(); ++it)
            names += (*it)->name;
        return names;
    }

protected:
    void ToXml_Int(CXmlWriter *, bool, const char *, const CSerializationContext &, bool) const override {}
    CXmlElement *FromXml_Int(CXmlElement *, CXmlElement *, const CSerializationContext &, bool) override
    {
        return nullptr;
    }
};

// Records each event as text: "Add:a", "AddComplete:a", "Remove:null", "Change".
class Recorder : public IEventSink
{
public:
    void OnEvent(CXmlObjectBase *, MsgType type, void *data) override
    {
        static const char *names[] = {"Change", "Add", "AddComplete", "Remove", "RemoveComplete"};
        std::string entry = names[type];
        if (type == MsgType_CollectionAdd || type == MsgType_CollectionAddComplete)
            entry += ":" + static_cast<Item *>(static_cast<CXmlObjectBase *>(data))->name;
        else if (type != MsgType_CollectionChange)
            entry += data ? ":" + std::to_string(*static_cast<int *>(data)) : ":null";
        events.push_back(entry);
        if (throwOnAdd && type == MsgType_CollectionAdd)
            throw CVxException("refused");
    }
    std::vector<std::string> events;
    bool throwOnAdd = false;
};

using Events = std::vector<std::string>;
using VxTest::Throws;

} // namespace

TEST(Collection, InsertionsFireAddLinkCompleteChange)
{
    Recorder recorder; // outlives the collection, which fires events as it dies
    CSmartPtr<ItemCollection> items(new ItemCollection);
    items->AddEventListener(&recorder);
    CSmartPtr<Item> b(new Item("b"));
    items->AppendItem(b);
    items->PrependItem(new Item("a"));
    items->AddItemAt(2, new Item("d"));
    items->AddBeforeItem(b, new Item("x"));
    items->AddAfterItem(b, new Item("c"));
    // A missing neighbour appends or prepends.
    items->AddBeforeItem(nullptr, new Item("z"));
    items->AddAfterItem(nullptr, new Item("0"));
    EXPECT_EQ("0axbcdz", items->Names());
    EXPECT_EQ((Events{"Add:b", "AddComplete:b", "Change"}),
              Events(recorder.events.begin(), recorder.events.begin() + 3));
    EXPECT_EQ(21u, recorder.events.size());
}

TEST(Collection, IndexFailuresAndTheirEventOrder)
{
    Recorder recorder; // outlives the collection, which fires events as it dies
    CSmartPtr<ItemCollection> items(new ItemCollection);
    items->AddEventListener(&recorder);
    EXPECT_TRUE(Throws<CVxInvalidParamException>([&] { items->Remove(0); }, "Index 0 is out of range, use 0 - 0"));
    CSmartPtr<Item> outsider(new Item("o"));
    EXPECT_TRUE(Throws<CVxInvalidParamException>([&] { items->AddItemAt(1, outsider); }, "Index out of range"));
    EXPECT_TRUE(recorder.events.empty()); // no event before the index test

    items->AppendItem(new Item("a"));
    EXPECT_TRUE(Throws<CVxInvalidParamException>([&] { items->Remove(-1); }, "Index -1 is out of range, use 0 - 1"));
    recorder.events.clear();
    // The search for a neighbour comes after the Add event.
    CSmartPtr<Item> stranger(new Item("s"));
    EXPECT_TRUE(Throws<CVxInvalidParamException>([&] { items->AddBeforeItem(stranger, outsider); },
                                                 "The object was not found in the collection"));
    EXPECT_EQ((Events{"Add:o"}), recorder.events);

    // A listener that throws on the Add event stops the insertion before anything changed.
    recorder.throwOnAdd = true;
    EXPECT_THROW(items->AppendItem(outsider), CVxException);
    EXPECT_EQ("a", items->Names());
}

TEST(Collection, RemovalReportsNoIndexAndReleasesTheItem)
{
    Recorder recorder; // outlives the collection, which fires events as it dies
    int destroyed = 0;
    CSmartPtr<ItemCollection> items(new ItemCollection);
    items->AppendItem(new Item("a", &destroyed));
    CSmartPtr<Item> kept(new Item("b", &destroyed));
    items->AppendItem(kept);
    items->AddEventListener(&recorder);
    items->AddEventListener(&recorder);
    items->RemoveEventListener(&recorder); // drops both registrations
    items->AddEventListener(&recorder);

    items->Remove(0);
    EXPECT_EQ(1, destroyed);
    EXPECT_EQ((Events{"Remove:null", "RemoveComplete:null", "Change"}), recorder.events);
    items->Clear();
    EXPECT_EQ(1, destroyed); // still held by kept
    recorder.events.clear();
    items->Clear();
    EXPECT_TRUE(recorder.events.empty());

    // A copy takes no nodes; the source's destruction clears it.
    items->AppendItem(new Item("c", &destroyed));
    CSmartPtr<ItemCollection> copy(new ItemCollection(*items));
    copy->Release(); // a copy starts with its source's count; drop the one it took over
    EXPECT_EQ(0, copy->GetCount());
    items = nullptr;
    EXPECT_EQ(2, destroyed);
}

TEST(Collection, CountValidation)
{
    CSerializationContext context;
    CSmartPtr<ItemCollection> items(new ItemCollection(1, 1));
    EXPECT_FALSE(items->IsValidCount(context));
    items->AppendItem(new Item("a"));
    items->AppendItem(new Item("b"));
    EXPECT_FALSE(items->IsValidCount(context));
    EXPECT_TRUE(Throws<CVxValidationException>(
        [&] { items->ValidateCount(context); },
        "The Maximum number of [item] elements allowed in this collection is 1"));
    context.SetIgnoreInvalidCollectionCounts(true);
    EXPECT_TRUE(items->IsValidCount(context));
    EXPECT_TRUE(Throws<CVxException>(
        [&] { items->GetTargetNamespace(); },
        "CXmlCollectionBase::GetTargetNamespace Should not be used from within a Collection (program logic error)"));
}
