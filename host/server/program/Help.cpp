// SPDX-License-Identifier: MIT
#include <fmt/format.h>

#include "host/server/net/settings/Settings.h"
#include "host/server/program/Program.h"

namespace Tarvik::Server {

std::string HelpText() {
    std::string text = R"(usage: seaplan-server [--settings FILE] COMMAND

commands:
  serve               serves until SIGTERM or SIGINT; requests that have begun are finished first
  user add NAME       adds a user; the password is the first line of standard input
  user password NAME  sets another password and ends the user's sessions
  user disable NAME   ends the user's sessions and lets the user log in no more
  user enable NAME    lets a disabled user log in again
  user list           prints every user, one a line, with "enabled" or "disabled"
  export [--user NAME | --all] FILE
                      writes one user's voyages, or all users with their accounts, into a file
  import [--user NAME] [--add] [--skip-bad] FILE
                      reads such a file, wholly or not at all; --user gives the one user's voyages to NAME,
                      --add puts them beside those that are there, --skip-bad leaves out, by name, the records
                      that cannot be kept
                      both take --data FOLDER, as of a client, instead of the settings' data
  route A B [--via PASSAGE]... [--without PASSAGE]... [--open PASSAGE]... [--draught M] [--beam M] [--length M]
          [--explain] [--format table|geojson]
                      shows the way between two ports (code, name or id) by passages (name or id); --open opens
                      one that is shut unless asked for, --explain adds what was forbidden, how the ports are
                      joined and what the ways by other passages cost; a leg tells its miles inside emission
                      control areas ("eca"); --draught, --beam and --length (metres) keep out of passages that are
                      too small for the ship
  distances FILE.csv  measures the pairs of a table with the columns from_unlocode and to_unlocode; where it has
                      published distances in nm, and the routing in via, the errors' statistics follow
  distances --all     prints the distances between all ports as a table, with all cores
  --help              prints this
  --version           prints the version

Settings come from the file named by --settings, else by SEAPLAN_SERVER_SETTINGS, else from
/etc/seaplan-server.conf if it is there: lines "key = value", "#" begins a comment line. A variable
SEAPLAN_SERVER_KEY in the environment goes before the file. Users may be changed while the server runs.

exit codes: 0 success; 1 the command failed; 2 a wrong word or setting

settings and their defaults:
)";
    const Settings defaults;
    for (const SettingsEntry& entry : SettingsTable()) {
        text += fmt::format("  {} = {}\n      {}\n", entry.key, entry.print(defaults), entry.meaning);
    }
    return text;
}

std::string VersionText() {
    return std::string("seaplan-server ") + SEAPLAN_SERVER_VERSION + "\n";
}

}  // namespace Tarvik::Server
