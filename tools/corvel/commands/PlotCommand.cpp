#include "corvel/commands/PlotCommand.h"

#include "corvel/console/Errors.h"
#include "corvel/console/Interrupt.h"
#include "corvel/console/Print.h"
#include "corvel/console/Printable.h"
#include "corvel/plot/MeasurementJson.h"
#include "corvel/plot/StripPicture.h"
#include "corvel/render/Render.h"

namespace Tessitor::Tool {

namespace {

// Also finds out what is wrong with the call before anything is measured.
std::optional<SPictureOptions> pictureOptionsOf(const SPlotCall &call) {
    if (!call.picture) {
        if (!call.json)
            throw CCallError("corvel plot needs an output, such as voice.svg, or --json");
        if (call.theme || call.scale)
            throw CCallError("--light, --dark and --scale need an output, such as voice.svg");
        return {};
    }
    SPictureOptions options;
    options.format = pictureFormatOf(*call.picture);
    options.theme = call.theme.value_or(usualTheme(options.format));
    if (call.scale && options.format == EPictureFormat::Svg)
        throw CCallError("--scale is for .png; an .svg can be shown at any size");
    options.scale = call.scale.value_or(options.scale);
    return options;
}

}  // namespace

int runPlot(const SPlotCall &call) {
    const std::optional<SPictureOptions> picture = pictureOptionsOf(call);
    const CEffectLibrary library(CEffectLibrary::choose(call.plugin));
    CEffectInstance trial(library);
    requireRenderable(trial, {});
    const CEffectSettings settings(call.settings, trial);
    for (const std::string &note : settings.notes())
        printRemark(note);

    noteInterrupts();
    const SMeasurement measurement = measure(library, settings, trial, call.measurement);
    const std::string bytes = picture ? drawStrip(measurement, *picture) : "";
    if (isInterrupted()) {
        printRemark(interruptionText());
        return interruptionStatus();
    }
    if (picture)
        writePicture(*call.picture, bytes, call.existing);
    if (call.json)
        printJson(jsonFrom(measurement));
    else
        print(printable(*call.picture) + ": " + printable(measurement.program) + ", " +
              describeTail(measurement.decay) + "\n");
    return 0;
}

}  // namespace Tessitor::Tool
