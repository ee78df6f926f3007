// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "seaplan/data/Outcome.h"
#include "seaplan/protocol/VoyCatalogModule.h"

namespace Tarvik::Seaplan {

/// What fails when categories and voyages are changed.
enum class ChangeStep { Input, Server, KnownId, Category, Voyage, Positions, Time };
/// Numbers of AddCategory and AddVoyage.
inline constexpr CodeTable kAddCodes{
    Code{ChangeStep::Server, -1},   // the server makes none
    Code{ChangeStep::KnownId, -2},  // the store has its id already
};
/// Numbers of RenameCategory, DeleteCategory, RecoverCategory and DestroyCategory.
inline constexpr CodeTable kChangeCategoryCodes{
    Code{ChangeStep::Input, -1},     // an empty id or name; nothing is sent
    Code{ChangeStep::Server, -2},    // the server refused
    Code{ChangeStep::Category, -3},  // it is done, but the store does not know the category
};

/// Runs the server's commands on categories and brings the store up to date when the server has said yes.
class CategoryChanges {
  public:
    /// Keeps its collaborators, which outlive it.
    CategoryChanges(VoyCatalogModule* module, VoyageStore* store) : module_(module), store_(store) {}

    /// `ci` becomes the new category's id; kAddCodes tells what fails.
    Outcome<ChangeStep> Add(const std::string& name, std::string& ci);
    /// On the server, then in the store. Fails as kChangeCategoryCodes tells.
    Outcome<ChangeStep> Rename(const std::string& ci, const std::string& name);
    /// To the bin (InRecycleBin), out of it (InUse), or away for good (Destroyed); the record stays in the
    /// store.
    Outcome<ChangeStep> SetState(const std::string& ci, DeletionState state);

  private:
    VoyCatalogModule* module_;
    VoyageStore* store_;
};

}  // namespace Tarvik::Seaplan
