// SPDX-License-Identifier: MIT
#include "seaplan/panels/tree/ItemCommands.h"

#include <utility>

namespace Tarvik::Seaplan {

ItemCommands::ItemCommands(TreeCommands ofCategory, std::initializer_list<TreeCommands> ofVoyage,
                           const NoteCommands& notes)
    : ofCategory_(std::move(ofCategory)), notes_(notes) {
    for (const TreeCommands& commands : ofVoyage) {
        ofVoyage_.insert(commands.begin(), commands.end());
    }
}

const TreeCommand* ItemCommands::Find(bool isCategory, const std::string& item) const {
    const TreeCommands& own = isCategory ? ofCategory_ : ofVoyage_;
    const TreeCommands& notes = isCategory ? notes_.OfCategory() : notes_.OfVoyage();
    for (const TreeCommands* commands : {&own, &notes}) {
        const auto found = commands->find(item);
        if (found != commands->end()) {
            return &found->second;
        }
    }
    return nullptr;
}

}  // namespace Tarvik::Seaplan
