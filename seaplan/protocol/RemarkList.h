// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "seaplan/protocol/RemarkMessages.h"

namespace Tarvik::Seaplan {

/// The remarks of one object and their server commands. Each remark stays at its address until it is deleted
/// or the list is loaded again. Every operation gives true for success; after a failure the list is as it
/// was, except that a failed load leaves it empty.
class RemarkList {
  public:
    RemarkList() = default;
    RemarkList(const RemarkList&) = delete;
    RemarkList& operator=(const RemarkList&) = delete;
    RemarkList(RemarkList&&) = default;
    RemarkList& operator=(RemarkList&&) = default;
    ~RemarkList() = default;

    /// Reads the remarks of an object, in the order of the reply; what was here before goes first, whatever
    /// comes after. False, here and below, when the server refused or did not answer; the others then change
    /// nothing.
    bool LoadRemarks(int type, const std::string& objectid);
    /// Adds a remark behind the others; `seq` is its number, set also when adding fails.
    bool AddRemark(int type, const std::string& objectid, int& seq, const std::string& subject,
                   const std::string& body);
    /// The creation date stays. A remark that the list does not hold is changed on the server alone.
    bool ChangeRemark(int type, const std::string& objectid, int seq, const std::string& subject,
                      const std::string& body);
    /// Deletes a remark on the server and here; one that the list does not hold on the server alone.
    bool DeleteRemark(int type, const std::string& objectid, int seq);

    /// Whether a remark with these texts fits a request; one that does not is never sent.
    static bool Fits(const CRemark& remark);

    /// One above the object's highest number, 1 without remarks.
    int NextRemarkSeq(int type, const std::string& objectid) const;
    /// The first remark with this name, or null.
    CRemark* Find(int type, const std::string& objectid, int seq) const;
    std::size_t Count() const { return remarks_.size(); }
    /// The remark at `index` below Count, or null.
    CRemark* At(std::size_t index) const;
    void Clear() { remarks_.clear(); }

  private:
    std::vector<std::unique_ptr<CRemark>> remarks_;
};

}  // namespace Tarvik::Seaplan
