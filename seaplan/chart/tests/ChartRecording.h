// SPDX-License-Identifier: MIT
#pragma once

#include <deque>
#include <string>
#include <vector>

#include <tarvik/core/TEvent.h>
#include <tarvik/core/TObject.h>
#include <tarvik/interface/ChartRecords.h>

namespace Tarvik::Seaplan::Testing {

/// A chart that only writes down, one text a call, what it is asked for. The bus is empty before and behind
/// it.
class ChartRecording : public Core::TObject {
  public:
    ChartRecording();
    ~ChartRecording() override;
    ChartRecording(const ChartRecording&) = delete;
    ChartRecording& operator=(const ChartRecording&) = delete;

    std::vector<std::string> calls;
    std::vector<Interface::TrvMapLineParams> lines;
    std::vector<Interface::TrvMapPointParams> labels;
    std::vector<Interface::TrvMapLayerParams> layers;

  private:
    template <auto Method>
    void Bind(const char* name);
    void* AddLayer(void* input);
    void* AddLine(void* input);
    void* AddLabel(void* input);
    void* AddImage(void* input);
    void* RegisterImage(void* input);
    void* DeleteObjects(void* input);
    void* DeleteByType(void* input);
    void* SetExtent(void* input);

    std::deque<Core::TEvent> delegates_;
};

}  // namespace Tarvik::Seaplan::Testing
