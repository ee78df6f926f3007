// SPDX-License-Identifier: MIT
#pragma once

#include "seaplan/panels/texts/BookTexts.h"
#include "seaplan/panels/texts/CommonTexts.h"
#include "seaplan/panels/texts/EditTexts.h"
#include "seaplan/panels/texts/NoteTexts.h"
#include "seaplan/panels/texts/PortCallTexts.h"
#include "seaplan/panels/texts/TreeTexts.h"
#include "seaplan/panels/texts/WhatIfTexts.h"

/// The whole string table, for the search by number and for the tests of the language files.
#define SEAPLAN_TEXT_KEYS(KEY)   \
    SEAPLAN_TREE_TEXTS(KEY)      \
    SEAPLAN_PORT_CALL_TEXTS(KEY) \
    SEAPLAN_BOOK_TEXTS(KEY)      \
    SEAPLAN_EDIT_TEXTS(KEY)      \
    SEAPLAN_WHAT_IF_TEXTS(KEY)   \
    SEAPLAN_NOTE_TEXTS(KEY)      \
    SEAPLAN_COMMON_TEXTS(KEY)
