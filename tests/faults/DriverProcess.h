// The saving driver as a child process, with its standard output at hand.
#pragma once

#include <fcntl.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace ladrix::test {

class DriverProcess {
  public:
    // `fault` is for the shim, which is preloaded unless it is null.
    DriverProcess(const std::string& operation, const std::string& folder, const char* fault) {
        int ends[2];
        if (pipe2(ends, O_CLOEXEC) != 0) throw std::runtime_error("no pipe");
        output_ = ends[0];
        posix_spawn_file_actions_t actions;
        posix_spawn_file_actions_init(&actions);
        posix_spawn_file_actions_adddup2(&actions, ends[1], STDOUT_FILENO);
        std::vector<std::string> words = {LADRIX_SAVE_DRIVER, operation, folder};
        std::vector<std::string> settings = settingsFor(folder, fault);
        std::vector<char*> arguments = pointersTo(words), environment = pointersTo(settings);
        const int failed = posix_spawn(&process_, LADRIX_SAVE_DRIVER, &actions, nullptr,
                                       arguments.data(), environment.data());
        posix_spawn_file_actions_destroy(&actions);
        ::close(ends[1]);
        if (failed != 0) throw std::runtime_error("no child process");
    }
    ~DriverProcess() {
        if (process_ != 0) {
            kill();
            wait();
        }
        ::close(output_);
    }
    DriverProcess(const DriverProcess&) = delete;
    DriverProcess& operator=(const DriverProcess&) = delete;

    pid_t number() const { return process_; }
    void kill() const { ::kill(process_, SIGKILL); }

    // Waits for what it tells next; "" at its end.
    std::string_view read() {
        const ssize_t length = ::read(output_, buffer_, sizeof buffer_);
        return {buffer_, length > 0 ? static_cast<std::size_t>(length) : 0};
    }

    // All that it tells from now on, until its end.
    std::string readAll() {
        std::string all;
        for (std::string_view part = read(); !part.empty(); part = read())
            all += part;
        return all;
    }

    // As waitpid tells it.
    int wait() {
        int status = 0;
        while (waitpid(process_, &status, 0) < 0 && errno == EINTR) {
        }
        process_ = 0;
        return status;
    }

  private:
    // What the driver makes for itself goes beside the folder.
    static std::vector<std::string> settingsFor(const std::string& folder, const char* fault) {
        const char* const options = getenv("ASAN_OPTIONS");
        const std::string beside = folder.substr(0, folder.rfind('/', folder.size() - 2));
        std::vector<std::string> settings = {"TMPDIR=" + beside, "LC_ALL=C"};
        if (!fault) return settings;
        // The sanitizer would rather be the first to be loaded.
        settings.push_back(std::string("ASAN_OPTIONS=") + (options ? options : "") +
                           ":verify_asan_link_order=0");
        settings.emplace_back("LD_PRELOAD=" LADRIX_FAULT_SHIM);
        settings.push_back("LADRIX_FAULT_FOLDER=" + folder);
        settings.push_back(std::string("LADRIX_FAULT=") + fault);
        return settings;
    }
    static std::vector<char*> pointersTo(std::vector<std::string>& texts) {
        std::vector<char*> pointers;
        for (std::string& text : texts)
            pointers.push_back(text.data());
        pointers.push_back(nullptr);
        return pointers;
    }

    pid_t process_ = 0;
    int output_ = -1;
    char buffer_[65536];
};

}  // namespace ladrix::test
