#include "qt/CupsQueue.h"

#include <QLibrary>
#include <QString>

#include "platform/Encoding.h"
#include "platform/Types.h"

namespace ladrix {

namespace {

// As the library's manual gives them.
struct CupsOption {
    char* name;
    char* value;
};
constexpr int Continue = 100;      // of HTTP
constexpr int LargestSuccess = 2;  // of IPP: done, some options left out or changed
constexpr const char* DocumentFormat = "application/pdf";

class Cups {
  public:
    Cups() : library_(QStringLiteral("cups"), 2) {
        if (!(resolve(addOption, "cupsAddOption") && resolve(freeOptions, "cupsFreeOptions") &&
              resolve(createJob, "cupsCreateJob") && resolve(startDocument, "cupsStartDocument") &&
              resolve(writeData, "cupsWriteRequestData") &&
              resolve(finishDocument, "cupsFinishDocument") &&
              resolve(cancelJob, "cupsCancelJob2") && resolve(lastError, "cupsLastErrorString")))
            throw Failure{failure::DeviceIO, "The printing system cannot be reached."};
    }

    [[noreturn]] void fail() const {
        const char* reason = lastError();
        throw Failure{failure::DeviceIO, fromUtf8(reason ? reason : "The printer took no job.")};
    }

    int (*addOption)(const char*, const char*, int, CupsOption**) = nullptr;
    void (*freeOptions)(int, CupsOption*) = nullptr;
    int (*createJob)(void*, const char*, const char*, int, CupsOption*) = nullptr;
    int (*startDocument)(void*, const char*, int, const char*, const char*, int) = nullptr;
    int (*writeData)(void*, const char*, std::size_t) = nullptr;
    int (*finishDocument)(void*, const char*) = nullptr;
    int (*cancelJob)(void*, const char*, int, int) = nullptr;
    const char* (*lastError)() = nullptr;

  private:
    template <class Function>
    bool resolve(Function& function, const char* name) {
        function = reinterpret_cast<Function>(library_.resolve(name));
        return function != nullptr;
    }

    QLibrary library_;
};

int createJob(const Cups& cups, const CupsJob& job) {
    CupsOption* options = nullptr;
    // The page is already that of the paper: an inch stays an inch.
    int count = cups.addOption("print-scaling", "none", 0, &options);
    if (!job.media.isEmpty())
        count = cups.addOption("media", job.media.constData(), count, &options);
    const int number =
        cups.createJob(nullptr, job.queue.constData(), job.title.constData(), count, options);
    cups.freeOptions(count, options);
    if (number == 0) cups.fail();
    return number;
}

}  // namespace

void submitToCups(const CupsJob& job, const std::string& pdf) {
    const Cups cups;
    const int number = createJob(cups, job);
    const char* queue = job.queue.constData();
    const bool taken = cups.startDocument(nullptr, queue, number, job.title.constData(),
                                          DocumentFormat, 1) == Continue &&
                       cups.writeData(nullptr, pdf.data(), pdf.size()) == Continue;
    if (cups.finishDocument(nullptr, queue) <= LargestSuccess && taken) return;
    try {
        cups.fail();
    } catch (const Failure&) {
        cups.cancelJob(nullptr, queue, number, 0);
        throw;
    }
}

}  // namespace ladrix
