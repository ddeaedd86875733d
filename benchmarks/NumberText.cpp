// Text conversion of the exact number types, per value: prices as the order documents
// carry them, and longer decimals and integers.

#include "BigInteger.h"
#include "Decimal.h"

#include <benchmark/benchmark.h>

#include <random>
#include <string>
#include <vector>

using VxXmlLib16::CBigInteger;
using VxXmlLib16::CDecimal;

namespace {

// Prices like "12345.67", the unitPrice form of the order documents.
std::vector<std::string> PriceTexts()
{
    std::mt19937 random(5);
    std::vector<std::string> texts;
    for (int i = 0; i < 1000; ++i) {
        const auto cents = std::to_string(random() % 100);
        texts.push_back(std::to_string(random() % 100000) + "." + std::string(2 - cents.size(), '0') + cents);
    }
    return texts;
}

std::vector<std::string> LongTexts()
{
    std::mt19937 random(9);
    std::vector<std::string> texts;
    for (int i = 0; i < 1000; ++i) {
        std::string text = "-";
        for (int digit = 0; digit < 40; ++digit)
            text += static_cast<char>('0' + random() % 10);
        text.insert(22, ".");
        texts.push_back(text);
    }
    return texts;
}

template <class Value>
void Parse(benchmark::State &state, const std::vector<std::string> &texts)
{
    for (auto _ : state) {
        for (const std::string &text : texts) {
            Value value(text.c_str());
            benchmark::DoNotOptimize(value);
        }
    }
    state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations() * texts.size()));
}

template <class Value>
void Print(benchmark::State &state, const std::vector<std::string> &texts)
{
    std::vector<Value> values;
    for (const std::string &text : texts)
        values.emplace_back(text.c_str());
    for (auto _ : state) {
        for (const Value &value : values) {
            std::string text = value.ToString();
            benchmark::DoNotOptimize(text);
        }
    }
    state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations() * values.size()));
}

void BM_DecimalParsePrice(benchmark::State &state) { Parse<CDecimal>(state, PriceTexts()); }
void BM_DecimalPrintPrice(benchmark::State &state) { Print<CDecimal>(state, PriceTexts()); }
void BM_DecimalParseLong(benchmark::State &state) { Parse<CDecimal>(state, LongTexts()); }
void BM_DecimalPrintLong(benchmark::State &state) { Print<CDecimal>(state, LongTexts()); }

void BM_DecimalPrintPlaces(benchmark::State &state)
{
    std::vector<CDecimal> values;
    for (const std::string &text : PriceTexts())
        values.emplace_back(text.c_str());
    for (auto _ : state) {
        for (const CDecimal &value : values) {
            std::string text = value.ToString(2);
            benchmark::DoNotOptimize(text);
        }
    }
    state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations() * values.size()));
}

std::vector<std::string> IntegerTexts()
{
    std::vector<std::string> texts = LongTexts();
    for (std::string &text : texts)
        text.erase(22, 1);
    return texts;
}

void BM_IntegerParse(benchmark::State &state) { Parse<CBigInteger>(state, IntegerTexts()); }
void BM_IntegerPrint(benchmark::State &state) { Print<CBigInteger>(state, IntegerTexts()); }

} // namespace

BENCHMARK(BM_DecimalParsePrice);
BENCHMARK(BM_DecimalPrintPrice);
BENCHMARK(BM_DecimalParseLong);
BENCHMARK(BM_DecimalPrintLong);
BENCHMARK(BM_DecimalPrintPlaces);
BENCHMARK(BM_IntegerParse);
BENCHMARK(BM_IntegerPrint);
