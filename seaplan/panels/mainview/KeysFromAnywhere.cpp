// SPDX-License-Identifier: MIT
#include "seaplan/panels/mainview/KeysFromAnywhere.h"

#include "seaplan/panels/book/BookCommands.h"
#include "seaplan/panels/book/BookEditing.h"
#include "seaplan/panels/book/BookSheet.h"
#include "seaplan/panels/book/CPosBookDlg.h"
#include "seaplan/panels/language/LoadText.h"
#include "seaplan/panels/portcall/CPortCallPanelDlg.h"
#include "seaplan/panels/portcall/CellEditing.h"
#include "seaplan/panels/portcall/PanelCommands.h"
#include "seaplan/panels/portcall/PortCallSheet.h"
#include "seaplan/panels/texts/BookTexts.h"
#include "seaplan/panels/texts/CommonTexts.h"
#include "seaplan/panels/texts/PortCallTexts.h"
#include "seaplan/panels/window/StatusWords.h"

namespace Tarvik::Seaplan {

namespace {

void Tell(TextId id) {
    TellInStatusLine(Text(id));
}

void SaveBook(CPosBookDlg& book) {
    if (!book.Cells().CommitText()) {
        return;
    }
    book.Sheet().changed ? book.Commands().OnSaveKey() : Tell(TextIds::IDS_VIEW_NOCHANGES);
}

void Save(CPortCallPanelDlg& portCalls) {
    portCalls.Cells().CommitEditors();
    portCalls.Sheet().state.canSave ? portCalls.Commands().OnSave() : Tell(TextIds::IDS_VIEW_NOCHANGES);
}

void Calculate(CPortCallPanelDlg& portCalls) {
    portCalls.Cells().CommitEditors();
    portCalls.Sheet().state.canCalculate ? portCalls.Commands().OnCalculate()
                                         : Tell(TextIds::IDS_VIEW_NEEDTWOPORTS);
}

}  // namespace

bool OnKeyFromAnywhere(KeyPress press, const PanelsInSight& open) {
    const bool save = press.ctrl && press.key == Key::S;
    const bool calculate = press.key == Key::F9 && !press.ctrl && !press.ctrlShift && !press.alt;
    if (!save && !calculate) {
        return false;
    }
    if (open.book != nullptr) {
        save ? SaveBook(*open.book) : Tell(TextIds::IDS_VIEW_BOOKWAITS);
    } else if (open.portCalls != nullptr) {
        save ? Save(*open.portCalls) : Calculate(*open.portCalls);
    } else {
        Tell(TextIds::IDS_VIEW_NOTHINGOPEN);
    }
    return true;
}

}  // namespace Tarvik::Seaplan
