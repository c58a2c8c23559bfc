#include "corvel/settings/CAutomation.h"

#include "corvel/console/Errors.h"
#include "corvel/console/Text.h"
#include "corvel/files/ReadAll.h"
#include "corvel/settings/AutomationLines.h"
#include "corvel/settings/Parameters.h"

#include <algorithm>
#include <memory>

namespace Tessitor::Tool {

namespace {

// Tries values of one parameter, and in the end restores the original one.
class CLaneReader {
public:
    CLaneReader(CEffectInstance &trial, std::int32_t index)
        : m_trial(trial), m_index(index), m_before(trial.parameter(index)),
          m_text(parameterText(trial, index)), m_lane{index, m_text.isChoice(), {}} {}
    ~CLaneReader() { m_trial.setParameter(m_index, m_before); }
    CLaneReader(const CLaneReader &) = delete;
    CLaneReader &operator=(const CLaneReader &) = delete;

    std::int32_t index() const { return m_index; }

    void add(const SAutomationLine &line) {
        const float value = m_text.valueOf(line.value);
        m_lane.points.push_back({line.seconds, value});
        const std::string other = m_text.otherMeaningOf(line.value);
        if (other.empty() || !m_note.empty())
            return;
        m_trial.setParameter(m_index, value);
        m_note = line.value + " is taken as a normalised value, which is " +
                 displayWithUnit(m_trial, m_index) + "; write @" + line.value + " for this" +
                 (other == line.value ? "" : ", or " + inQuotes(other) + " for " + other);
        m_noteLine = line.number;
    }

    CAutomation::SLane lane() const {
        CAutomation::SLane sorted = m_lane;
        std::stable_sort(sorted.points.begin(), sorted.points.end(),
                         [](const auto &a, const auto &b) { return a.seconds < b.seconds; });
        return sorted;
    }

    const std::string &note() const { return m_note; }  // on the first value with two meanings
    std::size_t noteLine() const { return m_noteLine; }

private:
    CEffectInstance &m_trial;
    std::int32_t m_index;
    float m_before;
    CParameterText m_text;
    CAutomation::SLane m_lane;
    std::string m_note;
    std::size_t m_noteLine = 0;
};

class CLaneReaders {
public:
    explicit CLaneReaders(CEffectInstance &trial) : m_trial(trial) {}

    CLaneReader &readerFor(const std::string &name) {
        const auto index = findParameter(m_trial, name);
        if (!index)
            throw CCallError("no parameter " + inQuotes(name) + "; corvel params lists them");
        for (const auto &reader : m_readers)
            if (reader->index() == *index)
                return *reader;
        return *m_readers.emplace_back(std::make_unique<CLaneReader>(m_trial, *index));
    }

    const std::vector<std::unique_ptr<CLaneReader>> &all() const { return m_readers; }

private:
    CEffectInstance &m_trial;
    std::vector<std::unique_ptr<CLaneReader>> m_readers;
};

}  // namespace

CAutomation::CAutomation(const std::string &file, CEffectInstance &trial) : m_file(file) {
    CLaneReaders readers(trial);
    for (const SAutomationLine &line : automationLines(readAll(file), file)) {
        try {
            readers.readerFor(line.parameter).add(line);
        } catch (const CCallError &error) {
            throw CJobError(placeInFile(file, line.number) + error.what());
        }
    }
    for (const auto &reader : readers.all()) {
        m_lanes.push_back(reader->lane());
        if (!reader->note().empty())
            m_notes.push_back("note: " + placeInFile(file, reader->noteLine()) + reader->note());
    }
}

}  // namespace Tessitor::Tool
