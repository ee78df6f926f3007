// SPDX-License-Identifier: MIT
#pragma once

#include <bit>
#include <cstdint>

namespace Tarvik::Interface {

/// Head of a request and of a reply on TRV_S_SYNCREQBISERVER, little-endian; the payload follows at offset 8.
/// The sender makes and frees the request block; the reply is a bus block (TObject.h) that the caller frees.
struct VoyServerRequest {
    std::uint32_t length;      ///< bytes of the payload, up to kMaxPayloadBytes
    std::uint16_t command;     ///< a VoyCommand
    std::uint16_t moduleWord;  ///< kVoyageModuleWord or kRemarkModuleWord

    ///@{
    /// The payload behind this head, `length` bytes of the same block.
    const char* Payload() const { return reinterpret_cast<const char*>(this + 1); }
    char* Payload() { return reinterpret_cast<char*>(this + 1); }
    ///@}
};
static_assert(sizeof(VoyServerRequest) == 8);
static_assert(std::endian::native == std::endian::little, "the head is read and written in place");

/// Module word of the commands of voyages, schedules and routes.
inline constexpr std::uint16_t kVoyageModuleWord = 5;
/// Module word of the command of remarks: server module 2, with 1 in the mode bits 12 and 13.
inline constexpr std::uint16_t kRemarkModuleWord = 0x1002;

/// Commands of the voyage server by their number in `command`. Nine stands twice; the module word tells the
/// two apart.
enum class VoyCommand : std::uint16_t {
    SearchRoute = 1,     ///< route between ports
    NearestRoute = 2,    ///< way from a position to a port
    LoadCatalog = 3,     ///< categories and voyages of a user
    ChangeCategory = 4,  ///< make, rename, recycle, recover, destroy a category
    ChangeVoyage = 5,    ///< the same of a voyage; its vessel, route display and tracing
    SaveFigures = 6,     ///< consumption figures
    LoadBook = 7,        ///< position book of a voyage
    CreateBook = 8,      ///< new position book
    SaveBookRows = 9,    ///< rows of a position book
    LoadPortCalls = 10,  ///< port calls of a voyage
    SavePortCalls = 11,  ///< the same, written
    LoadAisTimes = 12,   ///< times of correction from AIS
    AddAisTime = 13,     ///< one more of them
    SetBookDate = 14,    ///< start of a position book
    LoadFleet = 15,      ///< vessels of a user
    ChangeFleet = 16,    ///< add, change, remove one of them
    LoadPlaces = 17,     ///< own ports of a user
    ChangePlace = 18,    ///< add, change, remove one of them
    Remarks = 9          ///< remarks of an object, with kRemarkModuleWord
};

/// The number that goes over the wire.
constexpr std::uint16_t NumberOf(VoyCommand command) {
    return static_cast<std::uint16_t>(command);
}

/// Largest payload that either side takes, in bytes.
inline constexpr std::uint32_t kMaxPayloadBytes = 16U * 1024 * 1024;

}  // namespace Tarvik::Interface
