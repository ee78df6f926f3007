// SPDX-License-Identifier: MIT
#include <algorithm>

#include "host/plugins/ais/core/Decoder.h"

namespace Tarvik::Ais {

PartStore::Slot& PartStore::SlotOf(const Sentence& sentence) {
    const std::size_t sequence = sentence.sequence < 0 ? kSequences - 1 : std::size_t(sentence.sequence);
    std::size_t channel = kChannels - 1;
    if (sentence.channel == 'A' || sentence.channel == '1') {
        channel = 0;
    } else if (sentence.channel == 'B' || sentence.channel == '2') {
        channel = 1;
    } else if (sentence.channel == 0) {
        channel = 2;
    }
    return slots_[sequence * kChannels + channel];
}

Cause PartStore::Add(const Sentence& sentence, std::int64_t nowMs, SixBits& bits) {
    if (sentence.payload.size() > kLongestPart) {
        return Cause::BadPayload;
    }
    Slot& slot = SlotOf(sentence);
    const std::uint16_t bit = static_cast<std::uint16_t>(1U << (sentence.part - 1));
    const bool late = nowMs - slot.since > kLongestWait;
    bool lost = false;
    if (slot.parts != 0 && (slot.parts != sentence.parts || (slot.have & bit) != 0 || late)) {
        slot.parts = 0;
        lost = true;
    }
    if (slot.parts == 0) {
        slot.parts = sentence.parts;
        slot.have = 0;
        slot.since = nowMs;
    }
    Put(slot, sentence);
    if (slot.have != (1U << slot.parts) - 1) {
        return lost ? Cause::LostPart : Cause::Part;
    }
    return Join(slot, bits);
}

void PartStore::Put(Slot& slot, const Sentence& sentence) {
    const std::size_t index = sentence.part - 1U;
    slot.have = static_cast<std::uint16_t>(slot.have | 1U << index);
    slot.lengths[index] = static_cast<std::uint8_t>(sentence.payload.size());
    slot.fills[index] = sentence.fillBits;
    std::copy(sentence.payload.begin(), sentence.payload.end(), slot.texts[index].begin());
}

Cause PartStore::Join(Slot& slot, SixBits& bits) {
    const std::size_t parts = slot.parts;
    slot.parts = 0;
    bits.Clear();
    for (std::size_t i = 0; i < parts; ++i) {
        if (!bits.Append({slot.texts[i].data(), slot.lengths[i]}, slot.fills[i])) {
            return Cause::BadPayload;
        }
    }
    return Cause::Message;
}

}  // namespace Tarvik::Ais
