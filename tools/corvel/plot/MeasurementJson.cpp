#include "corvel/plot/MeasurementJson.h"

#include <cmath>

namespace Tessitor::Tool {

namespace {

using Json = nlohmann::ordered_json;

// To four decimals: more would be noise. JSON has no infinity.
Json number(double value) {
    constexpr double steps = 1e4;
    if (!std::isfinite(value))
        return nullptr;
    return std::round(value * steps) / steps + 0.0;  // no -0
}

Json numbers(const std::vector<double> &values) {
    Json json = Json::array();
    for (const double value : values)
        json.push_back(number(value));
    return json;
}

Json decayJson(const SDecay &decay) {
    constexpr const char *kinds[] = {"none", "decays", "persists", "unknown"};
    Json json{{"tail", kinds[static_cast<std::size_t>(decay.tail)]}};
    if (decay.seconds.empty())
        return json;
    json["tailLevel"] = number(decay.tailLevel);
    json["rt60"] = decay.fit ? number(decay.fit->reverberation) : Json();
    json["fittedTo"] = decay.fit ? number(decay.fit->to) : Json();
    json["secondsTo60"] = decay.secondsTo60 ? number(*decay.secondsTo60) : Json();
    json["seconds"] = numbers(decay.seconds);
    json["energies"] = numbers(decay.energies);
    return json;
}

}  // namespace

nlohmann::ordered_json jsonFrom(const SMeasurement &measurement) {
    const auto &[level, tone, tempo] = measurement.options;
    return {{"effect", measurement.effect},
            {"version", measurement.version},
            {"program", measurement.program},
            {"chain", measurement.chain},
            {"settings", measurement.settings},
            {"sampleRate", probeRate},
            {"tempo", tempo},
            {"response",
             {{"noiseLevel", level},
              {"frequencies", numbers(measurement.response.frequencies)},
              {"left", numbers(measurement.response.gains[0])},
              {"right", numbers(measurement.response.gains[1])}}},
            {"levels",
             {{"tone", tone},
              {"in", numbers(measurement.levels.in)},
              {"left", numbers(measurement.levels.out[0])},
              {"right", numbers(measurement.levels.out[1])}}},
            {"decay", decayJson(measurement.decay)}};
}

}  // namespace Tessitor::Tool
