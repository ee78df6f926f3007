// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include <tarvik/core/TEvent.h>
#include <tarvik/core/TObject.h>

namespace Tarvik::Golden {

/// Plays the chart on the bus and writes every call, with all that it carries, as lines of text. Paths of
/// files are told from the host's data folder on. Unbinds at its end.
class ChartLog : public Core::TObject {
  public:
    ChartLog();
    ~ChartLog() override;
    ChartLog(const ChartLog&) = delete;
    ChartLog& operator=(const ChartLog&) = delete;

    /// Puts a line between the calls so far and those to come.
    void Heading(const std::string& text);
    const std::string& Text() const { return text_; }

  private:
    template <auto Method>
    void Bind(const char* name);
    void* OnAddLayer(void* input);
    void* OnRemoveLayer(void* input);
    void* OnAddLine(void* input);
    void* OnAddLabel(void* input);
    void* OnAddImage(void* input);
    void* OnRegisterImage(void* input);
    void* OnDeleteObjects(void* input);
    void* OnDeleteType(void* input);
    void* OnSetExtent(void* input);
    void Write(const char* service, const std::string& words);

    std::string text_;
    std::vector<std::pair<std::string, std::unique_ptr<Core::TEvent>>> bindings_;
};

}  // namespace Tarvik::Golden
