// Loading files whole and in chunks, hostile documents, and the reading entry points.

#include <gtest/gtest.h>

#include <cerrno>
#include <fstream>
#include <string>
#include <vector>

#include "ExceptionAssert.h"
#include "LinesOrder.h"
#include "Exceptions.h"
#include "TestSupport.h"
#include "XmlDocument.h"
#include "XmlObjectBase.h"

using namespace VxXmlLib16;
using VxTest::Throws;
using VxTest::TempPath;
using AsyncReading = VxTest::SwitchScope<AsyncFromXmlFile, IsAsyncFromXmlFile>;

namespace {

constexpr std::size_t kChunk = 131072;

std::string WriteFile(const char *name, const std::string &content)
{
    const std::string path = TempPath(name);
    std::ofstream(path, std::ios::binary) << content;
    return path;
}

// A document of exactly the given size: padding comments after the root element.
std::string DocumentOfSize(std::size_t size)
{
    std::string text = "<r>x</r><!--";
    text.append(size - text.size() - 3, 'p');
    return text + "-->";
}

} // namespace

// A file of two chunks and a part reads back whole, and a second load starts again at its
// beginning.
TEST(XmlDocumentFileTest, ChunkedReadingGivesTheWholeDocument)
{
    const std::string path = TempPath("chunked.xml");
    VxTest::LinesOrder(8000).ToXmlFile(path.c_str());
    AsyncReading async(true);
    VxTest::LinesOrder back(0);
    for (int load = 0; load < 2; ++load) {
        back.FromXmlFile(path.c_str());
        EXPECT_TRUE(back.ReadLines() == VxTest::LinesOrder::LinesOf(8000));
    }
}

// The chunked path asks for more after every full chunk and fails on the end of the
// file, so an empty file and a file of exactly one chunk fail there; read whole, they do not.
// Both paths name a file that cannot be opened with the system error.
TEST(XmlDocumentFileTest, FileFailuresOfBothReadingPaths)
{
    const std::string missing = TempPath("does-not-exist.xml");
    const std::string notOpened = FormatString("Failed to open the file [%s] Error [0x%08x]", missing.c_str(), ENOENT);
    const std::string empty = WriteFile("empty.xml", "");
    const std::string exact = WriteFile("exact.xml", DocumentOfSize(kChunk));
    CXmlDocument document;
    EXPECT_TRUE(Throws<CVxException>([&] { document.Load(missing.c_str()); }, notOpened));
    EXPECT_TRUE(Throws<CVxException>([&] { document.Load(empty.c_str()); }, "no element found at line 1"));
    EXPECT_NO_THROW(document.Load(exact.c_str()));

    AsyncReading async(true);
    EXPECT_TRUE(Throws<CVxException>([&] { document.Load(missing.c_str()); }, notOpened));
    const std::string endOfFile = FormatString("Error [0x%08x]", ENODATA);
    EXPECT_TRUE(Throws<CVxException>([&] { document.Load(exact.c_str()); },
                                     "Failed to read the contents of the file. " + endOfFile));
    // The chunked path cleans up after a failure.
    EXPECT_EQ(document.GetDocumentElement(), nullptr);
    EXPECT_TRUE(Throws<CVxException>([&] { document.Load(empty.c_str()); },
                                     "Failed to read the contents of the file [" + empty + "] " + endOfFile));
    EXPECT_NO_THROW(document.Load(WriteFile("near.xml", DocumentOfSize(kChunk - 1)).c_str()));
    EXPECT_TRUE(Throws<CVxException>([&] { document.Load(WriteFile("bad.xml", "<r>\n<a></r>").c_str()); },
                                     "mismatched tag at line 2"));
    EXPECT_EQ(document.GetDocumentElement(), nullptr);
}

TEST(XmlDocumentFileTest, EntityExpansionIsBoundedAndExternalEntitiesAreNeverRead)
{
    std::string laughs = "<!DOCTYPE r [<!ENTITY a0 'laugh laugh laugh laugh'>";
    for (int i = 1; i < 12; ++i) {
        laughs += "<!ENTITY a" + std::to_string(i) + " '";
        for (int k = 0; k < 10; ++k)
            laughs += "&a" + std::to_string(i - 1) + ";";
        laughs += "'>";
    }
    laughs += "]><r>&a11;</r>";
    CXmlDocument document;
    EXPECT_TRUE(Throws<CVxException>([&] { document.LoadXml(laughs.c_str()); },
                                     "limit on input amplification factor (from DTD and entities) breached at line 1"));

    const std::string secret = WriteFile("secret.txt", "SECRET");
    document.LoadXml(("<!DOCTYPE r [<!ENTITY e SYSTEM 'file://" + secret + "'>]><r>a&e;b</r>").c_str());
    EXPECT_EQ(document.GetDocumentElement()->GetText(), "ab");
}

TEST(XmlDocumentFileTest, DeepTreesLoadAndDieWithoutRecursion)
{
    constexpr int depth = 1000000;
    std::string text;
    for (int i = 0; i < depth; ++i)
        text += "<a>";
    text += "x";
    for (int i = 0; i < depth; ++i)
        text += "</a>";
    CXmlDocument document;
    document.LoadXml(text.c_str());
    const CXmlElement *deepest = document.GetDocumentElement();
    while (deepest->GetFirstElement())
        deepest = deepest->GetFirstElement();
    EXPECT_EQ(deepest->GetText(), "x");
    EXPECT_EQ(deepest->GetXPath().size(), 2u * depth);
}

// The object reads the root's children; a parse failure leaves it untouched.
TEST(XmlDocumentFileTest, EntryPointsHandTheRootsChildrenOver)
{
    const std::vector<std::string> lines{"a", "b"};
    VxTest::LinesOrder order(0);
    order.FromXml(L"<o>t<l>a</l><l>b</l></o>");
    EXPECT_EQ(order.ReadLines(), lines);
    EXPECT_THROW(order.FromXml("<o><l>f</l>"), CVxException);
    EXPECT_EQ(order.ReadLines(), lines);
}
