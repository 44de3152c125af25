// What a specification formula costs a load: its text, its seven ranges, and the keywords of its title.

#include <benchmark/benchmark.h>

#include <string>

#include "CellRange.h"
#include "Keywords.h"
#include "PlotData.h"
#include "RunState.h"
#include "Specification.h"

namespace quorb {

namespace {

const std::string kFormula =
    "= 0.01 + LEN(\"Transfer to the ring kmday yzx valz xyzw moon\") + MAX(A2:C1048576) + MAX(D2:D1048576) + "
    "MAX(E2:F3000) + MAX(G2:K1048576) + MAX(L2:M1048576) + MAX(N2:O1048576) + MAX(P2:Q1048576)";

void ReadRanges(const SpecificationText& text) {
  for (const std::string* range : {&text.rangeXYZ, &text.rangeT, &text.rangeEvents, &text.rangeQuater,
                                   &text.rangeSApY, &text.rangeSAmY, &text.rangeValZ}) {
    RangeNumbers numbers;
    benchmark::DoNotOptimize(ConvertA1LC(*range, numbers));
    benchmark::DoNotOptimize(numbers);
  }
}

void RunKeywordPass(const std::string& title) {
  MessageUserToPlot = title;
  TitleKeywords keywords = StartKeywordPass();
  for (const auto stage : {KeywordStage::beforeRows, KeywordStage::colourValues,
                           KeywordStage::quaternionOrder, KeywordStage::centralBody}) {
    Extraction_information_mots_clef(stage, keywords);
  }
  EndKeywordPass();
  benchmark::DoNotOptimize(keywords);
}

void FormulaAndRanges(benchmark::State& state) {
  StartRunState();
  for (auto unused : state) {
    static_cast<void>(unused);
    ReadRanges(Extraction_info(kFormula, ""));
  }
}
BENCHMARK(FormulaAndRanges)->Unit(benchmark::kMicrosecond);

void FormulaRangesAndKeywords(benchmark::State& state) {
  StartRunState();
  for (auto unused : state) {
    static_cast<void>(unused);
    const SpecificationText text = Extraction_info(kFormula, "");
    ReadRanges(text);
    RunKeywordPass(text.title);
  }
}
BENCHMARK(FormulaRangesAndKeywords)->Unit(benchmark::kMicrosecond);

}  // namespace

}  // namespace quorb

BENCHMARK_MAIN();
