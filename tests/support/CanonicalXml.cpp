#include "CanonicalXml.h"

#include "TestSupport.h"

#include <expat.h>

#include <algorithm>
#include <vector>

namespace VxTest {

namespace {

struct OpenElement
{
    std::size_t line; // where its line stands in the output
    std::string text;
    bool hasChildren = false;
};

struct Canonicalizer
{
    std::vector<std::string> lines;
    std::vector<OpenElement> open;

    static void Start(void *data, const char *name, const char **attributes)
    {
        auto *self = static_cast<Canonicalizer *>(data);
        if (!self->open.empty())
            self->open.back().hasChildren = true;
        std::vector<std::string> sorted;
        for (const char **a = attributes; *a; a += 2)
            sorted.push_back(std::string(a[0]) + "=\"" + a[1] + "\"");
        std::sort(sorted.begin(), sorted.end());
        std::string line = std::to_string(self->open.size()) + " " + name;
        for (const std::string &attribute : sorted)
            line += " " + attribute;
        self->open.push_back({self->lines.size()});
        self->lines.push_back(std::move(line));
    }

    static void End(void *data, const char *)
    {
        auto *self = static_cast<Canonicalizer *>(data);
        const OpenElement &element = self->open.back();
        const bool layoutOnly = element.text.find_first_not_of(" \t\r\n") == std::string::npos;
        if (!(element.hasChildren && layoutOnly))
            self->lines[element.line] += " [" + element.text + "]";
        self->open.pop_back();
    }

    static void Text(void *data, const char *text, int length)
    {
        auto *self = static_cast<Canonicalizer *>(data);
        if (!self->open.empty())
            self->open.back().text.append(text, static_cast<std::size_t>(length));
    }
};

} // namespace

std::string CanonicalXml(const std::string &text)
{
    Canonicalizer canonicalizer;
    XML_Parser parser = XML_ParserCreateNS(nullptr, '|');
    XML_SetUserData(parser, &canonicalizer);
    XML_SetElementHandler(parser, &Canonicalizer::Start, &Canonicalizer::End);
    XML_SetCharacterDataHandler(parser, &Canonicalizer::Text);
    const bool ok = XML_Parse(parser, text.data(), static_cast<int>(text.size()), 1) != XML_STATUS_ERROR;
    std::string result = ok ? std::string()
                            : std::string("error: ") + XML_ErrorString(XML_GetErrorCode(parser)) + " at line " +
                                  std::to_string(XML_GetCurrentLineNumber(parser));
    XML_ParserFree(parser);
    if (!ok)
        return result;
    for (const std::string &line : canonicalizer.lines)
        result += line + "\n";
    return result;
}

std::string ExpatCheck(const std::string &text)
{
    const std::string canonical = CanonicalXml(text);
    return canonical.rfind("error: ", 0) == 0 ? canonical.substr(7) : std::string();
}

} // namespace VxTest
