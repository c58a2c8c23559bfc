#include "corvel/presets/CPresetText.h"

#include "corvel/settings/Chain.h"
#include "tools/support/StoredPrograms.h"

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

using namespace Tessitor::Tool;
using namespace std::string_literals;
using Tessitor::Corvel::SProgram;
using testing::HasSubstr;
using testing::Not;
using Json = nlohmann::ordered_json;

namespace {

class CPresetTextTest : public testing::Test {
protected:
    static std::string textFrom(const SProgram &program) {
        return presetText().textFrom({{program}, 0});
    }

    static SProgram programFrom(const std::string &text) {
        return presetText().presetFrom(text).programs.at(0);
    }

    static std::string faultOf(const std::string &text) {
        try {
            presetText().presetFrom(text);
        } catch (const CPresetError &error) {
            return error.what();
        }
        return "";
    }

    /// @return the fault of a valid program after a change to its JSON.
    static std::string faultAfter(const std::function<void(Json &)> &change) {
        Json json = Json::parse(textFrom(leadVocal()));
        change(json);
        return faultOf(json.dump());
    }

    static std::string faultOfValue(const char *name, const Json &value) {
        return faultAfter([&](Json &json) { json["parameters"][name] = value; });
    }

    static SProgram leadVocal() {
        static const SProgram program = factoryPrograms()[0];
        return program;
    }

    // Shared by the tests, since its tables take time to make
    static const CPresetText &presetText() {
        static const CPresetText text;
        return text;
    }
};

}  // namespace

TEST_F(CPresetTextTest, AProgramReadsLikeItsEditor) {
    const std::string text = textFrom(leadVocal());
    EXPECT_THAT(text, testing::StartsWith(R"({
    "format": "Corvel program",
    "version": 1,
    "name": "Lead Vocal",
    "chain": ["Rumble Filter", "Compressor", "3Band", "Reverb"],
    "parameters": {
        "InGain": "0.00 dB",
        "InMono": "Combine",
)"));
    EXPECT_THAT(text, HasSubstr(R"("CmpThresh": "-20.10 dB")"));
    EXPECT_THAT(text, HasSubstr(R"("Mod1Type": {"shown": "Vibrato", "normalised": 0.3})"));
    EXPECT_THAT(text, testing::EndsWith("        \"OutMono\": \"Stereo\"\n    }\n}\n"));
    EXPECT_EQ(Json::parse(text)["parameters"].size(), 62u);
}

TEST_F(CPresetTextTest, EveryFactoryProgramComesBackExactly) {
    for (const SProgram &program : factoryPrograms())
        EXPECT_EQ(bytesOf({{programFrom(textFrom(program))}, 0}), bytesOf({{program}, 0}))
            << nameOf(program);
}

TEST_F(CPresetTextTest, AThousandRandomProgramsComeBackExactly) {
    for (unsigned seed = 0; seed < 1000; ++seed) {
        const SProgram program = randomProgram(seed);
        ASSERT_EQ(bytesOf({{programFrom(textFrom(program))}, 0}), bytesOf({{program}, 0})) << seed;
    }
}

TEST_F(CPresetTextTest, ABankComesBackExactly) {
    const SPreset bank{factoryPrograms(), 7};
    const SPreset read = presetText().presetFrom(presetText().textFrom(bank));
    EXPECT_EQ(bytesOf(read), bytesOf(bank));
    EXPECT_EQ(read.current, 7u);
}

TEST_F(CPresetTextTest, AnEditedTextIsUnderstood) {
    Json json = Json::parse(textFrom(leadVocal()));
    json["name"] = "Mine";
    json["chain"] = {"reverb", "GATE"};
    Json &parameters = json["parameters"];
    parameters["CmpThresh"] = "-24dB";
    parameters["Mod1Type"] = "phaser";
    parameters["CmpLink"] = {{"normalised", 0.25}};
    parameters["rvtime"] = parameters["RvTime"];
    parameters.erase("RvTime");
    const SProgram program = programFrom(json.dump());
    EXPECT_STREQ(program.name.data(), "Mine");
    EXPECT_EQ(chainOf(program), (Chain{kReverbSlot, kGateSlot}));
    EXPECT_EQ(program.parameters[kCmpThresh], 0.6f);
    EXPECT_EQ(program.parameters[kMod1Type], 1.0f);
    EXPECT_EQ(program.parameters[kCmpLink], 0.25f);
    EXPECT_EQ(program.parameters[kRvTime], leadVocal().parameters[kRvTime]);
}

TEST_F(CPresetTextTest, LinksThatTheChainDoesNotExplainAreKept) {
    SProgram program = leadVocal();
    // What the editor leaves when a module is replaced
    program.order[kGateSlot] = {kNoSlot, kReverbSlot};
    program.order[kReverbSlot].prev = kGateSlot;
    const std::string text = textFrom(program);
    EXPECT_THAT(text, HasSubstr(R"(    "links": {
        "Gate": ["none", "Reverb"],
        "Reverb": ["Gate", "none"]
    },
)"));
    EXPECT_EQ(programFrom(text), program);
    EXPECT_THAT(textFrom(leadVocal()), Not(HasSubstr("links")));
}

TEST_F(CPresetTextTest, NamesInLatin1AreKept) {
    SProgram program = leadVocal();
    program.name = {'K', '\xE4', 's', 'e'};
    const std::string text = textFrom(program);
    EXPECT_THAT(text, HasSubstr("\"name\": \"K\xC3\xA4se\",\n    \"encoding\": \"latin1\""));
    EXPECT_EQ(programFrom(text), program);
}

TEST_F(CPresetTextTest, TheBytesOfAnOlderNameAreKept) {
    SProgram program = leadVocal();
    program.name[4] = '\0';  // "Lead", then "Vocal"
    const std::string text = textFrom(program);
    EXPECT_EQ(programFrom(text), program);
    // A new name overwrites only as many bytes as it has, as in the effect.
    Json json = Json::parse(text);
    json["name"] = "New";
    EXPECT_EQ(std::string(programFrom(json.dump()).name.data(), 10), "New\0\0Vocal"s);
}

TEST_F(CPresetTextTest, BrokenJsonIsRefusedWithItsPlace) {
    EXPECT_EQ(faultOf(""), "line 1, column 1: not valid JSON");
    EXPECT_EQ(faultOf("{\n\"format\" \"x\"}"), "line 2, column 12: not valid JSON");
    EXPECT_EQ(faultOf("{\"format\": \"\xE4\"}"), "line 1, column 14: not valid JSON");
    EXPECT_EQ(faultOf("{\"format\": NaN}"), "line 1, column 12: not valid JSON");
    EXPECT_EQ(faultOf("{\"format\": 1e999}"), "has a number that is too large");
    EXPECT_EQ(faultOf(std::string(1 << 20, '[')), "not a preset (nested too deeply)");
    const std::string text = textFrom(leadVocal());
    for (std::size_t length = 0; length < text.size() - 2; length += 7)
        EXPECT_THAT(faultOf(text.substr(0, length)), HasSubstr(": not valid JSON")) << length;
}

TEST_F(CPresetTextTest, OtherJsonIsRefused) {
    EXPECT_EQ(faultOf("[]"), "not a preset (no \"format\")");
    EXPECT_EQ(faultOf("{}"), "not a preset (no \"format\")");
    EXPECT_EQ(faultOf("{\"format\": 1}"), "the entry \"format\" is not a text");
    EXPECT_EQ(faultAfter([](Json &json) { json["format"] = "x\n"; }),
              "not a preset (its format is \"x\\n\")");
    EXPECT_EQ(faultAfter([](Json &json) { json["version"] = 2; }),
              "unknown version of the file format");
    EXPECT_EQ(faultAfter([](Json &json) { json["chian"] = 2; }),
              "the program has an unknown entry \"chian\"");
    EXPECT_EQ(faultOf("{\"format\": \"Corvel program\", \"version\": 1, \"format\": 1}"),
              "has the entry \"format\" twice");
}

TEST_F(CPresetTextTest, EveryEntryIsNeeded) {
    for (const char *name : {"format", "version", "name", "chain", "parameters"}) {
        EXPECT_THAT(faultAfter([&](Json &json) { json.erase(name); }), HasSubstr(name));
        EXPECT_NE(faultAfter([&](Json &json) { json[name] = nullptr; }), "") << name;
    }
    EXPECT_EQ(faultAfter([](Json &json) { json["parameters"].erase("Pan"); }),
              "the parameter Pan is missing");
}

TEST_F(CPresetTextTest, WrongValuesAreRefused) {
    EXPECT_EQ(faultOfValue("CmpThresh", "3 dB"),
              "CmpThresh: 3 dB is outside -60.00 to 0.00 dB or -oo");
    EXPECT_THAT(faultOfValue("CmpThresh", "-18"), HasSubstr("\"-18\" is only a number"));
    EXPECT_EQ(faultOfValue("CmpThresh", -18),
              "CmpThresh: expected a text like \"-30.00 dB\" or {\"normalised\": 0.5}");
    EXPECT_THAT(faultOfValue("CmpThresh", nullptr), HasSubstr("CmpThresh: expected a text"));
    EXPECT_EQ(faultOfValue("CmpThresh", {{"normalised", 1.5}}),
              "CmpThresh: is 1.5, outside 0 to 1");
    EXPECT_EQ(faultOfValue("CmpThresh", {{"normalised", -1e300}}),
              "CmpThresh: is -1e+300, outside 0 to 1");
    EXPECT_EQ(faultOfValue("CmpThresh", {{"normalised", "0.5"}}),
              "CmpThresh: its normalised value is not a number");
    EXPECT_EQ(faultOfValue("CmpThresh", {{"shown", "-18.00 dB"}}),
              "CmpThresh: the entry \"normalised\" is missing");
    EXPECT_EQ(faultOfValue("CmpThresh", {{"normalized", 0.5}}),
              "CmpThresh: the value has an unknown entry \"normalized\"");
    EXPECT_EQ(faultOfValue("Mod1Type", {{"shown", "ADT"}, {"normalised", 0.3}}),
              "Mod1Type: \"ADT\" is not how 0.3 is shown, \"Vibrato\"; keep only one of the two");
    EXPECT_EQ(faultOfValue("CmpLink", "a\nb"), "CmpLink: \"a\\nb\" is not a value");
    EXPECT_THAT(faultOfValue("CmpLink", std::string(1000, 'x')), HasSubstr("too long"));
    EXPECT_EQ(faultOfValue("Flange", "1"), "there is no parameter \"Flange\"");
    EXPECT_EQ(faultOfValue("ingain", "0.00 dB"), "has the parameter InGain twice");
}

TEST_F(CPresetTextTest, WrongChainsAreRefused) {
    const auto faultOfChain = [](const Json &chain) {
        return faultAfter([&](Json &json) { json["chain"] = chain; });
    };
    EXPECT_EQ(faultOfChain("Gate"), "the chain is not a list of modules");
    EXPECT_EQ(faultOfChain({1}), "the chain has an entry that is not a module's name");
    EXPECT_EQ(faultOfChain({"Flanger"}), "the chain has no module \"Flanger\"");
    EXPECT_EQ(faultOfChain({"Gate", "Pan", "gate"}), "the chain contains \"Gate\" twice");
    EXPECT_EQ(faultOfChain({"InGain"}), "the chain cannot contain \"InGain\"");
    EXPECT_EQ(faultOfChain({"none"}), "the chain cannot contain \"none\"");
}

TEST_F(CPresetTextTest, WrongLinksAreRefused) {
    const auto faultOfLinks = [](const Json &links) {
        return faultAfter([&](Json &json) { json["links"] = links; });
    };
    EXPECT_EQ(faultOfLinks(1), "the links are not a JSON object");
    EXPECT_THAT(faultOfLinks({{"Gate", "Pan"}}), HasSubstr("not a slot with its previous"));
    EXPECT_THAT(faultOfLinks({{"Gate", {"Pan"}}}), HasSubstr("not a slot with its previous"));
    EXPECT_THAT(faultOfLinks({{"none", {"Pan", "Pan"}}}), HasSubstr("not a slot"));
    EXPECT_EQ(faultOfLinks({{"Gate", {"Pan", "Flanger"}}}), "the chain has no module \"Flanger\"");
    EXPECT_THAT(faultOfLinks({{"Compressor", {"Gate", "Gate"}}}),
                HasSubstr("the links contradict the chain"));
    EXPECT_EQ(faultOfLinks({{"Reverb", {"3Band", "Compressor"}}}),
              "the chain runs in a circle through Compressor");
}

TEST_F(CPresetTextTest, WrongNamesAreRefused) {
    const auto faultOfName = [](const Json &name) {
        return faultAfter([&](Json &json) { json["name"] = name; });
    };
    EXPECT_EQ(faultOfName(std::string(23, 'x')), "");
    EXPECT_EQ(faultOfName(std::string(24, 'x')), "the program's name is longer than 23 bytes");
    EXPECT_EQ(faultOfName("a\0b"s), "the program's name contains a zero");
    EXPECT_EQ(faultAfter([](Json &json) { json["encoding"] = "utf16"; }),
              "the encoding is not \"latin1\", the only one besides UTF-8");
    EXPECT_EQ(faultAfter([](Json &json) {
                  json["encoding"] = "latin1";
                  json["name"] = "\xE2\x82\xAC";
              }),
              "the name has characters that are not in Latin-1");
    for (const std::string &record : {""s, "00"s, std::string(47, '0'), std::string(48, 'x')})
        EXPECT_EQ(faultAfter([&](Json &json) { json["nameRecord"] = record; }),
                  "the name's record is not 48 hexadecimal digits");
}

TEST_F(CPresetTextTest, WrongBanksAreRefused) {
    const Json bank = Json::parse(presetText().textFrom({factoryPrograms(), 0}));
    const auto faultOfBank = [&](const std::function<void(Json &)> &change) {
        Json json = bank;
        change(json);
        return faultOf(json.dump());
    };
    for (const Json &current : {Json(20), Json(-1), Json(0.5), Json("1")})
        EXPECT_EQ(faultOfBank([&](Json &json) { json["current"] = current; }),
                  "its current program is not a number from 0 to 19");
    EXPECT_EQ(faultOfBank([](Json &json) { json["programs"].erase(3); }),
              "a bank needs a list of 20 programs");
    EXPECT_EQ(faultOfBank([](Json &json) { json["programs"][3]["parameters"].erase("Pan"); }),
              "program 3: the parameter Pan is missing");
    EXPECT_EQ(faultOfBank([](Json &json) { json["programs"][3] = 5; }),
              "program 3: the program is not a JSON object");
    EXPECT_EQ(faultOfBank([](Json &json) { json["name"] = "x"; }),
              "the bank has an unknown entry \"name\"");
}
