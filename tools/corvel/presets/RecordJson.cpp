#include "corvel/presets/RecordJson.h"

#include "corvel/console/Text.h"
#include "corvel/presets/Encoding.h"
#include "corvel/presets/StrictJson.h"
#include "corvel/settings/Chain.h"

#include <algorithm>
#include <charconv>

namespace Tessitor::Tool {

namespace {

using Corvel::SChainLink;
using Corvel::SProgram;
using Json = nlohmann::ordered_json;

constexpr const char *noSlotLabel = "none";
constexpr const char *latin1 = "latin1";

std::string labelOf(std::int32_t slot) {
    return slot == kNoSlot ? noSlotLabel : slotLabels[static_cast<std::size_t>(slot)];
}

int slotFromJson(const Json &json) {
    if (!json.is_string())
        throw CPresetError("the chain has an entry that is not a module's name");
    const auto &label = json.get_ref<const std::string &>();
    for (int slot = kNoSlot; slot < kSlotCount; ++slot)
        if (equalInAnyCapitals(labelOf(slot), label))
            return slot;
    throw CPresetError("the chain has no module " + shortQuote(label));
}

Chain chainFromJson(const Json &json) {
    if (!json.is_array())
        throw CPresetError("the chain is not a list of modules");
    Chain chain;
    for (const Json &label : json) {
        const int slot = slotFromJson(label);
        if (slot < kFirstModuleSlot)
            throw CPresetError("the chain cannot contain " + shortQuote(labelOf(slot)));
        if (std::find(chain.begin(), chain.end(), slot) != chain.end())
            throw CPresetError("the chain contains " + shortQuote(labelOf(slot)) + " twice");
        chain.push_back(slot);
    }
    return chain;
}

void readLinks(const Json &links, SProgram &program) {
    if (!links.is_object())
        throw CPresetError("the links are not a JSON object");
    for (const auto &[label, link] : links.items()) {
        const int slot = slotFromJson(label);
        if (slot == kNoSlot || !link.is_array() || link.size() != 2)
            throw CPresetError("the links have an entry " + shortQuote(label) +
                               " that is not a slot with its previous and next one");
        program.order[static_cast<std::size_t>(slot)] = {slotFromJson(link[0]),
                                                         slotFromJson(link[1])};
    }
}

std::string toHex(const std::array<char, 24> &bytes) {
    constexpr const char *digits = "0123456789abcdef";
    std::string text;
    for (const char byte : bytes) {
        const auto number = static_cast<unsigned char>(byte);
        text.append(1, digits[number >> 4]).append(1, digits[number & 0xFu]);
    }
    return text;
}

std::array<char, 24> fromHex(const std::string &text) {
    std::array<char, 24> bytes{};
    const CPresetError wrong("the name's record is not 48 hexadecimal digits");
    if (text.size() != 2 * bytes.size())
        throw wrong;
    for (std::size_t place = 0; place < bytes.size(); ++place) {
        unsigned char number = 0;
        const char *const first = text.data() + 2 * place;
        if (std::from_chars(first, first + 2, number, 16).ptr != first + 2)
            throw wrong;
        bytes[place] = static_cast<char>(number);
    }
    return bytes;
}

std::string bytesOfName(const Json &json) {
    const std::string &name = textOf(json, "name");
    if (!json.contains("encoding"))
        return name;
    if (textOf(json, "encoding") != latin1)
        throw CPresetError("the encoding is not \"latin1\", the only one besides UTF-8");
    const std::optional<std::string> bytes = latin1FromUtf8(name);
    if (!bytes)
        throw CPresetError("the name has characters that are not in Latin-1");
    return *bytes;
}

}  // namespace

void addChain(Json &json, const SProgram &program) {
    const Chain chain = chainOf(program);
    json["chain"] = Json::array();
    for (const int slot : chain)
        json["chain"].push_back(labelOf(slot));
    SProgram plain = program;
    setChain(plain, chain);
    for (std::size_t slot = 0; slot < kSlotCount; ++slot) {
        const SChainLink &link = program.order[slot];
        if (link != plain.order[slot])
            json["links"][slotLabels[slot]] = {labelOf(link.prev), labelOf(link.next)};
    }
}

void readChain(const Json &json, SProgram &program) {
    const Chain chain = chainFromJson(entryOf(json, "chain"));
    setChain(program, chain);
    if (!json.contains("links"))
        return;
    readLinks(json["links"], program);
    if (chainOf(program) != chain)
        throw CPresetError("the links contradict the chain; if you changed the chain, remove "
                           "\"links\"");
}

void addName(Json &json, const SProgram &program) {
    const auto end = std::find(program.name.begin(), program.name.end(), '\0');
    json["name"] = nameOf(program);
    if (!isUtf8({program.name.begin(), end}))
        json["encoding"] = latin1;
    // A new name is copied over the old one, and what it does not cover stays.
    if (std::any_of(end, program.name.end(), [](char byte) { return byte != '\0'; }))
        json["nameRecord"] = toHex(program.name);
}

void readName(const Json &json, SProgram &program) {
    const std::string name = bytesOfName(json);
    if (name.size() >= program.name.size())
        throw CPresetError("the program's name is longer than 23 bytes");
    if (name.find('\0') != std::string::npos)
        throw CPresetError("the program's name contains a zero");
    program.name =
        json.contains("nameRecord") ? fromHex(textOf(json, "nameRecord")) : std::array<char, 24>{};
    *std::copy(name.begin(), name.end(), program.name.begin()) = '\0';
}

}  // namespace Tessitor::Tool
