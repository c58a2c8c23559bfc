// What the editor of the built effect costs, from the call of the host to the pixels on the screen.
#include "CSeenEditor.h"
#include "TimedRun.h"
#include "abi/HeapInUse.h"
#include "toolkit/windowing/CBareWindow.h"

#include <benchmark/benchmark.h>
#include <deque>
#include <optional>

namespace {

CDesktop *desktop = nullptr;

/// @return the picture of an editor that has just been opened.
CPicture pictureWhenOpen() {
    const CPluginFile file;
    CSeenEditor editor(*desktop, file);
    editor.createHostWindow();
    editor.open();
    editor.settle();
    return editor.picture();
}

void timeOpening(benchmark::State &state, CSeenEditor &editor, const CPicture &expected) {
    const SNativePoint place = lastDifference(expected, CPicture(Layout::width, Layout::height));
    editor.createHostWindow();
    time(state, [&] {
        editor.open();
        editor.idleUntil(place, expected.at(place.x, place.y));
    });
    editor.close();
}

// With a newly loaded library, which has no fonts and no pictures yet
void firstOpening(benchmark::State &state) {
    const CPicture expected = pictureWhenOpen();
    for (auto _ : state) {
        const CPluginFile file;
        CSeenEditor editor(*desktop, file);
        timeOpening(state, editor, expected);
    }
}
BENCHMARK(firstOpening)->Name("first opening/ours")->UseManualTime()->Iterations(1);

void laterOpening(benchmark::State &state) {
    const CPicture expected = pictureWhenOpen();
    const CPluginFile file;
    CSeenEditor editor(*desktop, file);
    editor.createHostWindow();
    editor.open();
    editor.settle();
    editor.close();
    for (auto _ : state)
        timeOpening(state, editor, expected);
}
BENCHMARK(laterOpening)->Name("later opening/ours")->UseManualTime();

// A connection, a window and a picture of the same size
void bareOpening(benchmark::State &state) {
    for (auto _ : state) {
        std::optional<CBareWindow> window;
        time(state, [&] {
            window.emplace(Layout::width, Layout::height);
            window->putImage(0, 0, Layout::width, Layout::height);
            window->synchronise();
        });
    }
}
BENCHMARK(bareOpening)->Name("later opening/bare X")->UseManualTime();

void creation(benchmark::State &state) {
    const CPluginFile file;
    const CLoadedEffect first(file, FakeHost::callback);  // finds the pictures
    for (auto _ : state) {
        std::optional<CLoadedEffect> effect;
        time(state, [&] { effect.emplace(file, FakeHost::callback); });
    }
}
BENCHMARK(creation)->Name("effect with its editor/ours")->UseManualTime();

void programChange(benchmark::State &state) {
    const CPluginFile file;
    CSeenEditor editor(*desktop, file);
    editor.createHostWindow();
    editor.open();
    std::vector<CPicture> pictures;
    for (const int program : {1, 0}) {
        editor.effect().send(effSetProgram, 0, program);
        editor.settle();
        pictures.insert(pictures.begin(), editor.picture());
    }
    const auto [x, y] = lastDifference(pictures[0], pictures[1]);
    int program = 0;
    for (auto _ : state) {
        program = 1 - program;
        const std::uint32_t colour = pictures[static_cast<std::size_t>(program)].at(x, y);
        time(state, [&] {
            editor.effect().send(effSetProgram, 0, program);
            editor.idleUntil({x, y}, colour);
        });
    }
}
BENCHMARK(programChange)->Name("program change/ours")->UseManualTime();

void barePicture(benchmark::State &state) {
    CBareWindow window(Layout::width, Layout::height);
    for (auto _ : state) {
        window.putImage(0, 0, Layout::width, Layout::height);
        window.synchronise();
    }
}
BENCHMARK(barePicture)->Name("program change/bare X");

void idle(benchmark::State &state) {
    const CPluginFile file;
    CSeenEditor editor(*desktop, file);
    editor.createHostWindow();
    editor.open();
    editor.settle();
    for (auto _ : state)
        editor.idle();
}
BENCHMARK(idle)->Name("idle call/ours");

void idlePoll(benchmark::State &state) {
    CBareWindow window(Layout::width, Layout::height);
    for (auto _ : state)
        while (window.takeEvent()) {
        }
}
BENCHMARK(idlePoll)->Name("idle call/bare X");

// Memory

void closedEditors(benchmark::State &state) {
    constexpr std::size_t count = 200;
    for (auto _ : state) {
        const CPluginFile file;
        CSeenEditor first(*desktop, file);
        const std::size_t before = heapInUse();
        first.createHostWindow();
        first.open();
        first.settle();
        first.close();
        const std::size_t opened = heapInUse();
        std::deque<CLoadedEffect> effects;
        for (std::size_t i = 0; i < count; ++i)
            effects.emplace_back(file, FakeHost::callback);
        state.counters["for the first opening"] = static_cast<double>(opened - before);
        state.counters["for each of 200 effects"] =
            static_cast<double>(heapInUse() - opened) / double{count};
    }
}
BENCHMARK(closedEditors)->Name("memory/ours")->Iterations(1)->Repetitions(1);

}  // namespace

int main(int argc, char **argv) {
    CDesktop screen;
    desktop = &screen;
    FakeHost host;
    host.logging = false;
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
