// XML Schema patterns run on PCRE2. The translation is plain text replacement of the
// class escapes the two languages spell differently; everything else passes through as
// it stands, so the differences of the two languages are part of the behaviour.

#define PCRE2_CODE_UNIT_WIDTH 8
#include <pcre2.h>

#include <memory>
#include <mutex>
#include <unordered_map>

#include "BinaryData.h"
#include "Exceptions.h"
#include "LocalText.h"
#include "PrimitiveRestrictions.h"

namespace VxXmlLib16 {

namespace {

// A pathological pattern must not hang the process: matching gives up past these.
constexpr std::uint32_t MatchLimit = 10'000'000;
constexpr std::uint32_t DepthLimit = 10'000;
// Compiled patterns are kept by their translated text; a full cache starts afresh.
constexpr std::size_t CacheCapacity = 512;

struct CodeDeleter
{
    void operator()(pcre2_code *code) const { pcre2_code_free(code); }
};
struct MatchDataDeleter
{
    void operator()(pcre2_match_data *data) const { pcre2_match_data_free(data); }
};
struct MatchContextDeleter
{
    void operator()(pcre2_match_context *context) const { pcre2_match_context_free(context); }
};

using Code = std::shared_ptr<const pcre2_code>;

std::string Translate(std::string pattern)
{
    // The byte 1 protects an escaped backslash, so that "\\i" is not read as "\i".
    ReplaceAll(pattern, "\\\\", "\x01");
    ReplaceAll(pattern, "\\i", "([^\\W\\d]|:)");
    ReplaceAll(pattern, "\\I", "([\\W\\d])");
    ReplaceAll(pattern, "\\c", "(\\w|\\.|-|:)");
    ReplaceAll(pattern, "\\C", "([^\\w\\.\\-\\:])");
    ReplaceAll(pattern, "\\p{IsBasicLatin}", "[\\000-\\177]");
    ReplaceAll(pattern, "\\p{IsLatin-1Supplement}", "[\\200-\\377]");
    ReplaceAll(pattern, "\\p{IsLatinExtended-A}", "[\\400-\\577]");
    ReplaceAll(pattern, "\\p{IsLatinExtended-B}", "[\\x{180}-\\x{24F}]");
    ReplaceAll(pattern, "\x01", "\\\\");
    return "^(" + pattern + ")$";
}

class PatternCache
{
public:
    Code Find(const std::string &expression)
    {
        std::lock_guard<std::mutex> guard(m_mutex);
        const auto found = m_codes.find(expression);
        return found == m_codes.end() ? nullptr : found->second;
    }
    void Add(const std::string &expression, Code code)
    {
        std::lock_guard<std::mutex> guard(m_mutex);
        if (m_codes.size() >= CacheCapacity)
            m_codes.clear();
        m_codes.emplace(expression, std::move(code));
    }

private:
    std::mutex m_mutex;
    std::unordered_map<std::string, Code> m_codes;
};

PatternCache &Cache()
{
    static PatternCache cache;
    return cache;
}

Code Compile(const std::string &expression, const std::string &value)
{
    if (Code cached = Cache().Find(expression))
        return cached;
    int error = 0;
    PCRE2_SIZE offset = 0;
    pcre2_code *code = pcre2_compile(reinterpret_cast<PCRE2_SPTR>(expression.c_str()), expression.size(),
                                     PCRE2_UTF, &error, &offset, nullptr);
    if (!code) {
        PCRE2_UCHAR text[256];
        pcre2_get_error_message(error, text, sizeof text);
        // The message names the value under test, not the pattern: kept as it always was.
        throw CVxException(FormatString("Invalid Regular Expression: %s Error: '%s'", value.c_str(),
                                        reinterpret_cast<const char *>(text)));
    }
    Code shared(code, CodeDeleter());
    Cache().Add(expression, shared);
    return shared;
}

std::string ToUtf8(const std::string &local)
{
    const CBinaryData bytes = LocalToUtf8Data(local.c_str());
    return std::string(reinterpret_cast<const char *>(bytes.GetData()), bytes.GetLength());
}

} // namespace

void ReplaceAll(std::string &text, const std::string &find, const std::string &replacement)
{
    for (std::size_t at = text.find(find); at != std::string::npos; at = text.find(find))
        text.replace(at, find.size(), replacement);
}

bool MatchXsdPattern(std::string pattern, std::string value)
{
    const Code code = Compile(Translate(std::move(pattern)), value);
    // The value ends at its first NUL byte.
    const std::string subject = ToUtf8(value.c_str());

    std::unique_ptr<pcre2_match_data, MatchDataDeleter> match(pcre2_match_data_create_from_pattern(code.get(), nullptr));
    std::unique_ptr<pcre2_match_context, MatchContextDeleter> context(pcre2_match_context_create(nullptr));
    pcre2_set_match_limit(context.get(), MatchLimit);
    pcre2_set_depth_limit(context.get(), DepthLimit);
    const int result = pcre2_match(code.get(), reinterpret_cast<PCRE2_SPTR>(subject.data()), subject.size(), 0,
                                   PCRE2_ANCHORED, match.get(), context.get());
    if (result <= 0)
        return false;
    const PCRE2_SIZE *offsets = pcre2_get_ovector_pointer(match.get());
    return offsets[0] == 0 && offsets[1] == subject.size();
}

} // namespace VxXmlLib16
