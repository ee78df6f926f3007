// SPDX-License-Identifier: MIT
#include "host/ports/search/Aliases.h"

#include <string_view>

namespace Tarvik::Ports {

namespace {

struct Alias {
    std::string_view unlocode;
    std::string_view name;
};

constexpr Alias kAliases[] = {
    {"AEFJR", "Fujairah"},
    {"AEJED", "Jabal Dhanna"},
    {"AEJEA", "Jabal Ali"},
    {"AEKLF", "Khor Fakkan"},
    {"AEPRA", "Mina Rashid"},
    {"AERUW", "Ruwais"},
    {"BDCGP", "Chattogram"},
    {"BEANR", "Antwerpen"},
    {"BEANR", "Anvers"},
    {"BEGNE", "Gand"},
    {"BEOST", "Ostende"},
    {"BRIGI", "Sepetiba"},
    {"BRRIO", "Rio"},
    {"CLTAL", "San Vicente Bay"},
    {"CMDLA", "Duala"},
    {"CNCAN", "Canton"},
    {"CNDLC", "Dairen"},
    {"CNFOC", "Foochow"},
    {"CNNKG", "Nanking"},
    {"CNQZJ", "Chuanchow"},
    {"CNSTG", "Swatow"},
    {"CNTAO", "Tsingtao"},
    {"CNTSN", "Tientsin"},
    {"CNXMN", "Amoy"},
    {"CNYTG", "Chefoo"},
    {"CUHAV", "Havana"},
    {"CYLMS", "Lemesos"},
    {"DEKEL", "Kiel Holtenau"},
    {"DELBC", "Luebeck"},
    {"DKCPH", "Kobenhavn"},
    {"EGALY", "El Iskandariya"},
    {"EGPSD", "Bur Said"},
    {"EGSUZ", "El Suweis"},
    {"ESLCG", "Corunna"},
    {"ESSVQ", "Seville"},
    {"FIHEL", "Helsingfors"},
    {"FITKU", "Turku"},
    {"FRDKK", "Dunkirk"},
    {"FRMRS", "Marseilles"},
    {"GRPIR", "Pireas"},
    {"GRPIR", "Athens"},
    {"GRSKG", "Salonica"},
    {"HKHKG", "Hongkong"},
    {"IDJKT", "Batavia"},
    {"INBOM", "Bombay"},
    {"INCCU", "Calcutta"},
    {"INCOK", "Kochi"},
    {"INMAA", "Madras"},
    {"INNSA", "Jawaharlal Nehru"},
    {"INNSA", "JNPT"},
    {"INTUT", "Thoothukudi"},
    {"INVTZ", "Vizag"},
    {"IRBKM", "Bandar Imam Khomeini"},
    {"IRBKM", "BIK"},
    {"ITGOA", "Genova"},
    {"ITLIV", "Leghorn"},
    {"ITNAP", "Napoli"},
    {"ITVCE", "Venezia"},
    {"JOAQJ", "Aqaba"},
    {"KHKOS", "Sihanoukville"},
    {"KRINC", "Inchon"},
    {"KRKAN", "Kwangyang"},
    {"KRKUV", "Kunsan"},
    {"KRPUS", "Pusan"},
    {"KRYOS", "Yosu"},
    {"KWSWK", "Shuwaik"},
    {"LTKLJ", "Memel"},
    {"MMRGN", "Rangoon"},
    {"MOMFM", "Macao"},
    {"MYPEN", "George Town"},
    {"MYPKG", "Port Swettenham"},
    {"MYPKG", "Pelabuhan Klang"},
    {"MYTPP", "PTP"},
    {"MZMPM", "Lourenco Marques"},
    {"NLVLI", "Flushing"},
    {"PLGDN", "Danzig"},
    {"PTLEI", "Oporto"},
    {"PTLEI", "Porto Leixoes"},
    {"PTLIS", "Lisboa"},
    {"ROCND", "Constantza"},
    {"RUKGD", "Konigsberg"},
    {"RULED", "Leningrad"},
    {"SADMN", "Damman"},
    {"SAJED", "Jiddah"},
    {"SAJUB", "Al Jubayl"},
    {"SEGOT", "Goteborg"},
    {"SYLTK", "Lattakia"},
    {"TRIST", "Constantinople"},
    {"TRIZM", "Smyrna"},
    {"TWKEL", "Jilong"},
    {"TWKHH", "Gaoxiong"},
    {"TWTXG", "Taizhong"},
    {"UAODS", "Odesa"},
    {"USLAX", "San Pedro"},
    {"USMSY", "NOLA"},
    {"USNYC", "New York City"},
    {"USORF", "Hampton Roads"},
    {"VNDAD", "Tourane"},
    {"VNSGN", "Saigon"},
    {"YEHOD", "Al Hudaydah"},
    {"ZAPLZ", "Gqeberha"},
};

}  // namespace

std::vector<std::string> AliasesOf(const std::string& unlocode) {
    std::vector<std::string> names;
    for (const Alias& alias : kAliases) {
        if (alias.unlocode == unlocode) {
            names.emplace_back(alias.name);
        }
    }
    return names;
}

std::vector<Port> PortsOf(const std::vector<Ports::Place>& places) {
    std::vector<Port> ports;
    for (const Ports::Place& place : places) {
        if (place.isPort) {
            const auto at = place.position.value_or(Server::GeoPoint());
            ports.push_back(
                {place.name, place.nameCn, place.unlocode, at.x, at.y, AliasesOf(place.unlocode)});
        }
    }
    return ports;
}

}  // namespace Tarvik::Ports
