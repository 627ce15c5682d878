#include "platform/FileProbe.h"

#include <algorithm>
#include <condition_variable>
#include <filesystem>
#include <map>
#include <mutex>
#include <set>
#include <system_error>
#include <thread>
#include <utility>

#include "platform/Encoding.h"

namespace ladrix {

bool isFileOnDisk(const std::string& path) {
    std::error_code none;
    return std::filesystem::is_regular_file(toUtf8(path), none);
}

struct FileProbe::Answers {
    std::mutex mutex;
    std::condition_variable answered;
    std::set<std::string> owed;
    std::map<std::string, bool> known;

    void take(const std::string& path, bool isThere) {
        const std::lock_guard lock(mutex);
        known[path] = isThere;
        owed.erase(path);
        answered.notify_all();
    }
};

FileProbe::FileProbe(Question question)
    : question_(std::move(question)), answers_(std::make_shared<Answers>()) {}

std::vector<bool> FileProbe::ask(const std::vector<std::string>& paths,
                                 std::chrono::milliseconds patience) {
    const auto deadline = std::chrono::steady_clock::now() + patience;
    std::unique_lock lock(answers_->mutex);
    std::vector<std::string> asked;
    for (const std::string& path : paths) {
        answers_->known.erase(path);
        if (!answers_->owed.insert(path).second) continue;
        try {
            std::thread([answers = answers_, question = question_, path] {
                answers->take(path, question(path));
            }).detach();
            asked.push_back(path);
        } catch (const std::system_error&) {
            answers_->owed.erase(path);  // no thread to be had: no answer
        }
    }
    answers_->answered.wait_until(lock, deadline, [&] {
        return std::none_of(asked.begin(), asked.end(),
                            [&](const std::string& path) { return answers_->owed.contains(path); });
    });
    std::vector<bool> isThere;
    for (const std::string& path : paths) {
        const auto known = answers_->known.find(path);
        isThere.push_back(known != answers_->known.end() && known->second);
    }
    return isThere;
}

}  // namespace ladrix
