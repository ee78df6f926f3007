// SPDX-License-Identifier: MIT
#pragma once

#include <deque>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include <tarvik/core/TEvent.h>
#include <tarvik/core/TObject.h>
#include <tarvik/interface/ChartRecords.h>

namespace Tarvik::Seaplan::Testing {

/// A chart that knows ports and a view, and writes down, one text a call, what it is asked for. The bus is
/// empty before and behind it.
class VoyCalChart : public Core::TObject {
  public:
    VoyCalChart();
    ~VoyCalChart() override;
    VoyCalChart(const VoyCalChart&) = delete;
    VoyCalChart& operator=(const VoyCalChart&) = delete;

    /// Calls that begin with `word`.
    std::vector<std::string> CallsOf(const std::string& word) const;

    std::vector<std::string> calls;
    std::vector<Interface::TrvMapLineParams> lines;
    std::vector<Interface::TrvMapPointParams> labels;
    std::map<std::string, Interface::TrvMapPort> ports;
    std::optional<Interface::TrvMapExtent> view;

  private:
    template <auto Method>
    void Bind(const char* name);
    void* AddLayer(void* input);
    void* RemoveLayer(void* input);
    void* AddLine(void* input);
    void* AddLabel(void* input);
    void* DeleteByType(void* input);
    void* GetPort(void* input);
    void* GetExtent(void* input);
    void* SetExtent(void* input);

    std::deque<Core::TEvent> delegates_;
};

}  // namespace Tarvik::Seaplan::Testing
