#include "dspclasses/support/SSubject.h"
#include "dspclasses/support/Speech.h"

#include <benchmark/benchmark.h>
#include <functional>

static constexpr int longestBlock = 4096;
static constexpr int inputFrames = 2 * longestBlock;  // small enough to stay in the caches

/// The buffers of all measurements. Their sizes keep the channels at different places within a
/// page: two streams at the same place can cost each other more time than a kernel takes.
template <typename Sample>
struct SBuffers {
    alignas(64) Sample inL[inputFrames + 256];
    alignas(64) Sample inR[inputFrames + 256];
    alignas(64) Sample outL[longestBlock + 256];
    alignas(64) Sample outR[longestBlock + 256];

    SBuffers() {
        const TStereo<Sample> speech = makeSpeech<Sample>(7, inputFrames);
        std::copy(speech.channels[0].begin(), speech.channels[0].end(), inL);
        std::copy(speech.channels[1].begin(), speech.channels[1].end(), inR);
    }
};

/// Processes block after block. Counts frames.
template <typename Sample>
static void measure(benchmark::State &state, const SSubject::Make &make) {
    static SBuffers<Sample> buffers;
    const int block = static_cast<int>(state.range(0));
    const auto module = make();
    int position = 0;
    for (auto _ : state) {
        Sample *in[] = {buffers.inL + position, buffers.inR + position};
        Sample *out[] = {buffers.outL, buffers.outR};
        process(*module, in, out, block);
        benchmark::ClobberMemory();
        position = (position + block) % inputFrames;
    }
    state.SetItemsProcessed(state.iterations() * block);
}

/// Repeats an operation that waits for its previous result, which is what limits a recursion.
/// Counts operations.
template <typename Operation>
static void measureChain(benchmark::State &state) {
    double value = 1.0, operand = 1.0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(operand);
        for (std::int64_t n = 0; n < state.range(0); ++n)
            value = Operation()(value, operand);
        benchmark::DoNotOptimize(value);
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

template <typename Sample>
static void add(const std::string &name, const SSubject::Make &make) {
    benchmark::RegisterBenchmark(name.c_str(), measure<Sample>, make)
        ->Arg(64)
        ->Arg(512)
        ->Arg(longestBlock);
}

int main(int argc, char **argv) {
    std::vector<SSubject> subjects = programsToMeasure();
    for (SSubject &module : modulesToMeasure())
        subjects.push_back(std::move(module));
    for (const SSubject &subject : subjects) {
        add<float>(subject.name + "/float/kernel", subject.makeKernel);
        add<float>(subject.name + "/float/plain", subject.makePlain);
        add<double>(subject.name + "/double/kernel", subject.makeKernel);
        add<double>(subject.name + "/double/plain", subject.makePlain);
    }
    benchmark::RegisterBenchmark("Addition/double/chain", measureChain<std::plus<>>)->Arg(10000);
    benchmark::RegisterBenchmark("Multiplication/double/chain", measureChain<std::multiplies<>>)
        ->Arg(10000);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 2;
    const bool anyMatched = benchmark::RunSpecifiedBenchmarks() > 0;
    benchmark::Shutdown();
    return anyMatched ? 0 : 1;
}
