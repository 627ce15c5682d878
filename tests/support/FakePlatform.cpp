#include "support/FakePlatform.h"

#include <algorithm>
#include <sstream>
#include <utility>

namespace ladrix::test {

std::shared_ptr<const Picture> FakeImages::load(const std::string& path) {
    loaded.push_back(path);
    const std::string name = path.substr(path.rfind(files_.separator()) + 1);
    const std::optional<FileEntry> entry = files_.status(path);
    if (!entry) throw Failure{failure::FileNotFound, name + ": No such file or directory"};
    if (entry->isFolder) throw Failure{failure::PathFileAccess, name + ": Is a directory"};
    if (damaged.contains(name)) {
        throw Failure{failure::InvalidProperty, name + ": not a picture"};
    }
    const auto size = sizes.find(name);
    const Size pixels = size == sizes.end() ? Size{} : size->second;
    return std::make_shared<FakePicture>(pixels.width, pixels.height);
}

std::shared_ptr<const Picture> FakeImages::fromBitmap(std::string_view bytes) {
    if (!bytes.starts_with("BM")) throw Failure{failure::InvalidProperty, "not a bitmap"};
    return std::make_shared<FakePicture>(25, 25, std::string(bytes));
}

std::string FakeImages::bitmapText(const Picture& picture) {
    return dynamic_cast<const FakePicture&>(picture).bitmap;
}

std::unique_ptr<PictureBox> FakeImages::makePicture(int width, int height) {
    return std::make_unique<RecordingPicture>(width, height);
}

Single FakeFonts::textWidth(const FontSpec& font, std::string_view text) {
    return 0.6f * font.size / 72 * static_cast<Single>(text.size());
}

Single FakeFonts::textHeight(const FontSpec& font) {
    return 1.2f * font.size / 72;
}

std::string FakeShell::specialFolder(int number) {
    const auto folder = folders.find(number);
    return folder == folders.end() ? std::string() : folder->second;
}

bool FakeShell::open(const std::string& target) {
    opened.push_back(target);
    return opens;
}

void FakeTimers::start(int timer, int milliseconds, std::function<void()> expired) {
    timers_[timer] = {milliseconds, std::move(expired)};
}

void FakeTimers::advance(int milliseconds) {
    const auto earlier = [](const auto& a, const auto& b) { return a.second.left < b.second.left; };
    while (!timers_.empty()) {
        const auto next = std::min_element(timers_.begin(), timers_.end(), earlier);
        const int passed = std::max(0, next->second.left);
        if (passed > milliseconds) break;
        milliseconds -= passed;
        const auto expired = std::move(next->second.expired);
        timers_.erase(next);
        for (auto& [number, timer] : timers_)
            timer.left -= passed;
        expired();
    }
    for (auto& [number, timer] : timers_)
        timer.left -= milliseconds;
}

std::string FakePageFiles::make(const PageContent& content, PageFormat format, double) {
    static constexpr const char* Names[] = {"pdf", "svg", "png", "bmp"};
    RecordingPage page;
    content.paint(page);
    std::ostringstream text;
    text << Names[static_cast<int>(format)] << ' ' << content.width << 'x' << content.height << ' '
         << content.title << '\n';
    for (const Primitive& primitive : page.primitives)
        text << primitive << '\n';
    return text.str();
}

FakePlatform::FakePlatform() {
    folder.makeFolder("program");
    folder.makeFolder("documents");
    shell.program = folder / "program/";
    shell.folders = {{5, folder / "documents"}, {12, folder / "documents"}};

    platform.picLX = &picLX;
    platform.dialogs = &dialogs;
    platform.files = &files;
    platform.clipboard = &clipboard;
    platform.images = &images;
    platform.fonts = &fonts;
    platform.shell = &shell;
    platform.timers = &timers;
    platform.printers = &printers;
    platform.pageFiles = &pageFiles;
    platform.LetEventsRun = [this] {
        ++eventRuns;
        if (duringEvents) duringEvents();
    };
    platform.screen.Width = 1920 * platform.screen.TwipsPerPixelX;
    platform.screen.Height = 1080 * platform.screen.TwipsPerPixelY;
    platform.locale.generalDate = [] { return std::string("3/14/2026 9:26:53 AM"); };
    platform.ReportError = [this](std::string_view description, const Failure& failure) {
        reports.push_back({std::string(description), failure.number, failure.text});
    };
}

}  // namespace ladrix::test
