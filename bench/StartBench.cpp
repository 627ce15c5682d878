// From the start of the process to the idle window with an empty drawing, and its memory then,
// beside a bare window of the toolkit of the same size. Each start is a process of its own.
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>

#include "EditorWindow.h"
#include "StartProbe.h"
#include "qt/Application.h"

namespace {

using namespace ladrix::bench;

constexpr int Rounds = 21;
constexpr double TimeLimit = 2, MemoryLimit = 1.7;
constexpr auto EditorArgument = "--editor";

struct Costs {
    std::vector<double> processor, wall, resident;
};

StartCost start(const std::string& program, const char* argument) {
    int ends[2];
    if (pipe(ends) != 0) throw std::runtime_error("no pipe");
    const double begin = WallClock::now();
    const pid_t child = fork();
    if (child < 0) throw std::runtime_error("no process");
    if (child == 0) {
        dup2(ends[1], STDOUT_FILENO);
        close(ends[0]);
        close(ends[1]);
        execl(program.c_str(), program.c_str(), argument, nullptr);
        _exit(127);
    }
    close(ends[1]);
    std::string text;
    char part[256];
    for (ssize_t length; (length = read(ends[0], part, sizeof part)) > 0;)
        text.append(part, static_cast<std::size_t>(length));
    close(ends[0]);
    waitpid(child, nullptr, 0);
    StartCost cost;
    if (std::sscanf(text.c_str(), "%lf %lf %lf", &cost.processor, &cost.wallClock,
                    &cost.resident) != 3)
        throw std::runtime_error(program + " did not start");
    cost.wallClock -= begin;
    return cost;
}

void add(Costs& costs, const StartCost& cost) {
    costs.processor.push_back(cost.processor);
    costs.wall.push_back(cost.wallClock);
    costs.resident.push_back(cost.resident / 1024);
}

void measure(const std::string& self) {
    const std::string bare = std::filesystem::path(self).replace_filename("BareWindow");
    Costs ours, measures, withText;
    for (int round = 0; round <= Rounds; ++round) {
        const StartCost ofBare = start(bare, nullptr);
        const StartCost ofText = start(bare, "--text");
        const StartCost ofOurs = start(self, EditorArgument);
        if (round == 0) continue;  // the first start fills the caches and makes the folders
        add(measures, ofBare);
        add(withText, ofText);
        add(ours, ofOurs);
    }
    printHeading("Start to the idle window beside a bare window of the toolkit");
    const auto line = [](const char* name, const std::vector<double>& own,
                         const std::vector<double>& measure, double limit) {
        printLine(name, {median(own), median(measure)}, limit);
    };
    line("time of the processor, ms", ours.processor, measures.processor, TimeLimit);
    line("time on the wall, ms", ours.wall, measures.wall, TimeLimit);
    line("resident memory, MB", ours.resident, measures.resident, MemoryLimit);
    printHeading("The same beside a bare window with a line of text, which loads the fonts");
    line("time of the processor, ms", ours.processor, withText.processor, 0);
    line("time on the wall, ms", ours.wall, withText.wall, 0);
    line("resident memory, MB", ours.resident, withText.resident, 0);
}

// The offscreen platform's own screen is too small for the editor.
void chooseScreen(const std::string& folder) {
    if (qgetenv("QT_QPA_PLATFORM") != "offscreen") return;
    const std::string file = folder + "/screen.json";
    std::ofstream(file) << R"({"screens": [{"name": "bench", "x": 0, "y": 0, "width": 1920,)"
                        << R"( "height": 1080, "logicalDpi": 96, "logicalBaseDpi": 96,)"
                        << R"( "dpr": 1}]})";
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + QByteArray::fromStdString(file));
}

}  // namespace

int main(int argc, char** argv) {
    if (argc == 2 && std::string_view(argv[1]) == EditorArgument) {
        probeStart();
        return ladrix::runEditor(1, argv);
    }
    try {
        chooseDisplay();
        const TemporaryHome home;
        chooseScreen(qgetenv("HOME").toStdString());
        measure(std::filesystem::read_symlink("/proc/self/exe"));
    } catch (const std::exception& error) {
        std::fprintf(stderr, "StartBench: %s\n", error.what());
        return 1;
    }
    return 0;
}
