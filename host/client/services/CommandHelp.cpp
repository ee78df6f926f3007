// SPDX-License-Identifier: MIT
#include <string_view>

#include <tarvik/interface/PlanTerms.h>
#include <tarvik/util/DateTimeUtl.h>

#include "host/client/services/CommandLine.h"

namespace Tarvik::Client {

namespace {

/// What a person chooses from stands in the text where its lists are filled in.
void Fill(std::string& text, std::string_view place, const std::string& list) {
    text.replace(text.find(place), place.size(), list);
}

constexpr const char* kHelpText =
    R"(Seaplan plans sea voyages.

  run [options]                       opens the chart with your voyages
  run --demo [options]                the same with sample voyages whose ships sail, in a data folder of its own
                                      that goes when it ends (with the sources only)
  run plan PORT PORT [PORT...] [...]  plans a voyage without a window and prints its schedule

Options of both
  --data DIR          folder of your data (else $SEAPLAN_DATA, else seaplan below $XDG_DATA_HOME or ~/.local/share)
  --server ADDRESS    voyage server for this time, as https://seaplan.example:8470, or embedded; without it, the one
                      of your preferences. plan logs in with $SEAPLAN_USER and $SEAPLAN_PASSWORD; $SEAPLAN_CA_FILE
                      names certificates to trust beside the system's
  --theme NAME        light, dark or night, of the window or of the plan's picture
  --lang NAME         @languages
  --verbose           repeats the log on standard error
  --help              this text
  --version           the version

Options of the window
  --screenshot FILE   writes a picture of the window to FILE and ends
  --panel CODE        with --screenshot: opens a panel first (3 voyages, 21 port distances)

Ports of plan
  A name in any case, a UN/LOCODE (NLRTM), an id, or the beginning of a name that only one port has. Of ports of one
  name the busy one is meant. Quote names of several words. A word behind "--" is a port even when it begins with "--".

Options of plan
  --depart "YYYY-MM-DD [HH:MM[:SS]]"  arrival at the first port, a date alone at midnight; also 2026-12-01T08:00, and
                                      with Z or +08:00 whatever the zone; without it, now
  --zone NAME                         zone of all times ("@zone", Europe/Amsterdam, UTC); without it,
                                      the zone of your preferences
  --speed KNOTS                       speed at sea, above 0; without it, 10
  --weather PERCENT                   weather factor, from 0 to below 100, by which the speed is reduced; without it, 0
  --stay HOURS[,HOURS...]             hours in port: one figure for all ports, or one for each in order; without it, 0
  --purpose CODE[,CODE...]            @purposes: one for all ports, or one for each in order; without it, L
                                      for the first port and D for the others
  --units @units      units of table and csv; without it, kts,nm,day
  --format table|json|csv|geojson     without it, table; json is in knots, nautical miles and hours
  --save CATEGORY/VOYAGE              keeps the voyage; the category is made when it is new, the voyage must be
  --picture FILE                      writes the client's window with the route on the chart, as .png or .jpg

Results go to standard output, everything else to standard error.
Exit code 0: done; 2: bad input; 1: the plan failed.

Examples
  run plan Rotterdam Singapore --speed 14 --depart "2026-12-01 08:00"
  run plan Shanghai "Los Angeles" --speed 14 --stay 24,12 --format json --picture route.png
)";

}  // namespace

std::string HelpText(const std::vector<std::string>& languages) {
    std::string names;
    for (std::size_t i = 0; i < languages.size(); ++i) {
        names += (i == 0 ? "" : i + 1 == languages.size() ? " or " : ", ") + languages[i];
    }
    std::string text = kHelpText;
    Fill(text, "@languages", names);
    Fill(text, "@purposes", Interface::PurposeCodes(" "));
    Fill(text, "@zone", Util::kPlanZone);
    Fill(text, "@units", Interface::UnitChoices("|", ","));
    return text;
}

}  // namespace Tarvik::Client
