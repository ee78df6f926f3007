// SPDX-License-Identifier: MIT
#pragma once

namespace Tarvik::Seaplan {

/// Gives voyage trees what a screen reader walks, as long as one of them lives. A header of its own, as it is
/// all that the tree itself needs of it.
class TreeAccessFactory {
  public:
    TreeAccessFactory();
    ~TreeAccessFactory();
    TreeAccessFactory(const TreeAccessFactory&) = delete;
    TreeAccessFactory& operator=(const TreeAccessFactory&) = delete;
};

}  // namespace Tarvik::Seaplan
