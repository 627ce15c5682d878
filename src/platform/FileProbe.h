// Whether files are there, asked so that a path that never answers (a network drive that has gone)
// holds up nobody: every question waits on a thread of its own, and the asker only so long.
#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace ladrix {

// A regular file; the usual question. `path` is core text.
bool isFileOnDisk(const std::string& path);

class FileProbe {
  public:
    using Question = std::function<bool(const std::string& path)>;

    // The question is called on other threads, several at a time, and must not throw.
    explicit FileProbe(Question question = isFileOnDisk);

    // One answer for each path. False stands for "no" and for "no answer yet"; a path that still
    // owes an answer from before is not waited for.
    std::vector<bool> ask(const std::vector<std::string>& paths,
                          std::chrono::milliseconds patience);

  private:
    struct Answers;

    Question question_;
    std::shared_ptr<Answers> answers_;  // shared with the threads, which may outlive the probe
};

}  // namespace ladrix
