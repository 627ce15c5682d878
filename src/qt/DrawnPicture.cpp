#include "qt/DrawnPicture.h"

#include <sched.h>
#include <sys/resource.h>

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <cstring>
#include <optional>

#include "platform/Types.h"
#include "qt/PictureWorker.h"

namespace ladrix {

namespace {

constexpr qint64 LargestOutput =
    static_cast<qint64>(sizeof(WorkerHeader)) + 4ll * LongestPictureSide * LongestPictureSide;
constexpr auto TooLong = "reading it takes too long";
constexpr auto NoMetafile = "not a metafile that can be read";

[[noreturn]] void fail(const char* reason) {
    throw Failure{failure::InvalidProperty, reason};
}

void limit(decltype(RLIMIT_AS) resource, qint64 value) {
    const rlimit both{static_cast<rlim_t>(value), static_cast<rlim_t>(value)};
    setrlimit(resource, &both);
}

// Before the child starts.
void limitChild(QProcess& child, const DrawnLimits& limits) {
    child.setStandardErrorFile(QProcess::nullDevice());
    child.setChildProcessModifier([&limits] {
#if !defined(__SANITIZE_ADDRESS__)  // which maps far more than it uses
        limit(RLIMIT_AS, limits.memoryBytes);
#endif
        limit(RLIMIT_FSIZE, limits.svgBytes);
        limit(RLIMIT_CPU, limits.milliseconds / 1000 + 1);
        limit(RLIMIT_CORE, 0);
        unshare(CLONE_NEWUSER | CLONE_NEWNET);  // no network, where the system lets us
    });
}

void stop(QProcess& child) {
    child.kill();
    child.waitForFinished();
}

// The child works on files, whose size the system can bound.
QByteArray svgOf(const QByteArray& metafile, const DrawnLimits& limits, QDeadlineTimer deadline) {
    const QString converter = QStandardPaths::findExecutable(limits.converter);
    if (converter.isEmpty()) fail("reading it needs the program wmf2svg of libwmf");
    const QTemporaryDir folder;
    if (!folder.isValid()) fail("there is no room for temporary files");
    const QString source = folder.filePath(QStringLiteral("picture.wmf"));
    const QString target = folder.filePath(QStringLiteral("picture.svg"));
    QFile copy(source);
    if (!copy.open(QIODevice::WriteOnly) || copy.write(metafile) != metafile.size())
        fail("there is no room for temporary files");
    copy.close();
    QProcess child;
    limitChild(child, limits);
    child.setStandardInputFile(QProcess::nullDevice());
    child.setStandardOutputFile(QProcess::nullDevice());
    child.start(converter, {QStringLiteral("--inline"), QStringLiteral("-o"), target, source});
    if (!child.waitForFinished(static_cast<int>(deadline.remainingTime()))) {
        stop(child);
        fail(TooLong);
    }
    QFile file(target);
    if (child.exitStatus() != QProcess::NormalExit || child.exitCode() != 0 ||
        !file.open(QIODevice::ReadOnly))
        fail(NoMetafile);
    return file.read(limits.svgBytes);
}

// Beside the program, or where the build tree and an installation have it.
QString workerProgram(const DrawnLimits& limits) {
    if (!limits.worker.isEmpty()) return limits.worker;
    const QString here = QCoreApplication::applicationDirPath();
    return QStandardPaths::findExecutable(QStringLiteral("ladrix-picture"),
                                          {here, here + QStringLiteral("/../bin")});
}

// No more is taken than the largest picture has.
QByteArray outputOf(QProcess& child, QDeadlineTimer deadline) {
    QByteArray output;
    const auto take = [&] {
        output += child.readAllStandardOutput();
        if (output.size() <= LargestOutput) return;
        stop(child);
        fail("the picture is too large");
    };
    while (child.state() != QProcess::NotRunning) {
        if (deadline.hasExpired()) {
            stop(child);
            fail(TooLong);
        }
        child.waitForReadyRead(static_cast<int>(deadline.remainingTime()));
        take();
    }
    take();
    return output;
}

[[noreturn]] void failFor(const QProcess& child) {
    if (child.exitStatus() != QProcess::NormalExit)
        fail("drawing it takes too much time or memory");
    switch (static_cast<WorkerStatus>(child.exitCode())) {
        case WorkerStatus::RefersToOthers:
            fail("it refers to other files, which are not opened");
        case WorkerStatus::DeclaresEntities:
            fail("it declares entities, which are not followed");
        case WorkerStatus::TooDeep:
            fail("its elements are too deep within each other");
        case WorkerStatus::Empty:
            fail("the picture is empty");
        case WorkerStatus::Memory:
            fail("drawing it takes too much memory");
        default:
            fail("not a picture that can be read");
    }
}

DrawnPicture pictureOf(const QByteArray& output) {
    WorkerHeader header;
    if (output.size() < static_cast<qsizetype>(sizeof header)) fail("the picture is incomplete");
    std::memcpy(&header, output.constData(), sizeof header);
    const auto isSide = [](int side) { return side >= 1 && side <= LongestPictureSide; };
    if (header.magic != WorkerHeader().magic || !isSide(header.width) || !isSide(header.height) ||
        !isSide(header.ownWidth) || !isSide(header.ownHeight) ||
        output.size() - static_cast<qsizetype>(sizeof header) !=
            qsizetype{4} * header.width * header.height)
        fail("the picture is incomplete");
    QImage image(header.width, header.height, QImage::Format_ARGB32_Premultiplied);
    if (image.isNull()) fail("not enough memory");
    std::memcpy(image.bits(), output.constData() + sizeof header,
                static_cast<std::size_t>(image.sizeInBytes()));
    return {std::move(image), QSize(header.ownWidth, header.ownHeight)};
}

}  // namespace

DrawnPicture drawPicture(PictureKind kind, const QByteArray& content, const DrawnLimits& limits) {
    if (content.size() > limits.svgBytes) fail("larger than a drawn picture may be");
    const QString worker = workerProgram(limits);
    if (worker.isEmpty()) fail("reading it needs the program ladrix-picture");
    const QDeadlineTimer deadline(limits.milliseconds);
    const bool metafile = kind == PictureKind::Wmf;
    const QByteArray svg = metafile ? svgOf(content, limits, deadline) : content;
    QStringList arguments;
    const std::string_view bytes(content.constData(), static_cast<std::size_t>(content.size()));
    if (const std::optional<StatedSize> size = statedSize(bytes); metafile && size)
        arguments = {QString::number(size->width), QString::number(size->height)};
    QProcess child;
    limitChild(child, limits);
    child.start(worker, arguments);
    child.write(svg);
    child.closeWriteChannel();
    const QByteArray output = outputOf(child, deadline);
    if (child.error() == QProcess::FailedToStart)
        fail("reading it needs the program ladrix-picture");
    if (child.exitStatus() != QProcess::NormalExit || child.exitCode() != 0) failFor(child);
    return pictureOf(output);
}

}  // namespace ladrix
