// SPDX-License-Identifier: MIT
#include "host/plugins/ais/window/Words.h"

#include <iterator>

#include <tarvik/interface/LoadString.h>

namespace Tarvik::Ais {

QString Word(const char* key) {
    char16_t buffer[512];
    const std::u16string name = QString::fromLatin1(key).toStdU16String();
    Interface::TrvLoadString(u"Ais", u"Ais", name.c_str(), buffer, name.c_str(), std::size(buffer));
    return QString::fromUtf16(buffer);
}

}  // namespace Tarvik::Ais
