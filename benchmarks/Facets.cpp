// The facet check of strings against typical patterns, with the compiled-pattern cache
// hit and missed, and the variant's text round trip of an i4 and a string.

#include <benchmark/benchmark.h>

#include <string>
#include <vector>

#include "PrimitiveRestrictions.h"
#include "Variant.h"

using namespace VxXmlLib16;

namespace {

const char *const Postcode = "[A-Z]{1,2}[0-9][0-9A-Z]? [0-9][A-Z]{2}";
const char *const Email = "[A-Za-z0-9._%+\\-]+@[A-Za-z0-9.\\-]+\\.[A-Za-z]{2,}";

CPrimitiveRestrictions WithPattern(const std::string &pattern)
{
    return CPrimitiveRestrictions(pattern.c_str(), -1, -1, "", "", "", "", -1, -1, -1);
}

void CheckPattern(benchmark::State &state, const char *pattern, const std::string &value)
{
    const CPrimitiveRestrictions restrictions = WithPattern(pattern);
    for (auto _ : state)
        CheckRestrictionValue("e", value, ItemType_string, restrictions);
}

void BM_PostcodeCached(benchmark::State &state) { CheckPattern(state, Postcode, "SW1A 1AA"); }
void BM_EmailCached(benchmark::State &state) { CheckPattern(state, Email, "first.last@example.co.uk"); }

// More distinct patterns than the cache holds, so every check compiles its pattern.
void BM_PostcodeUncached(benchmark::State &state)
{
    std::vector<CPrimitiveRestrictions> restrictions;
    for (int i = 0; i < 2048; ++i)
        restrictions.push_back(WithPattern(std::string(Postcode) + "|x" + std::to_string(i)));
    std::size_t next = 0;
    for (auto _ : state) {
        CheckRestrictionValue("e", std::string("SW1A 1AA"), ItemType_string, restrictions[next]);
        next = (next + 1) % restrictions.size();
    }
}

void BM_VariantI4RoundTrip(benchmark::State &state)
{
    VxVariant value;
    for (auto _ : state) {
        value.FromString("-123456", ItemType_i4, CWhitespaceUtils::WhitespaceRule_Collapse);
        benchmark::DoNotOptimize(value.ToString(nullptr));
    }
}

void BM_VariantStringRoundTrip(benchmark::State &state)
{
    VxVariant value;
    for (auto _ : state) {
        value.FromString("  a string of some length  ", ItemType_string, CWhitespaceUtils::WhitespaceRule_Preserve);
        benchmark::DoNotOptimize(value.ToString(nullptr));
    }
}

} // namespace

BENCHMARK(BM_PostcodeCached);
BENCHMARK(BM_EmailCached);
BENCHMARK(BM_PostcodeUncached);
BENCHMARK(BM_VariantI4RoundTrip);
BENCHMARK(BM_VariantStringRoundTrip);
