#include "qt/QtPlatform.h"

#include <QClipboard>
#include <QCoreApplication>
#include <QDateTime>
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QLocale>
#include <QScreen>
#include <QStandardPaths>
#include <QSysInfo>
#include <QUrl>

#include "app/Program.h"
#include "qt/KeyCodes.h"
#include "qt/QtText.h"

namespace ladrix {

namespace {

constexpr int DocumentsFolder = 5, PicturesFolder = 39;

// Newer locales separate the hour from "PM" by a blank that the core's text does not have.
std::string generalDate() {
    QString text = QLocale().toString(QDateTime::currentDateTime(), QLocale::ShortFormat);
    text.replace(QChar(0x202F), ' ');
    return fromQString(text);
}

}  // namespace

void QtClipboard::Clear() {
    QGuiApplication::clipboard()->clear();
}

void QtClipboard::SetText(std::string_view text) {
    QGuiApplication::clipboard()->setText(toQString(text));
}

std::string QtShell::programFolder() {
    const QString own = QCoreApplication::applicationDirPath();
    const QString data = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    folders_ = shippedFolders(files_, fromQString(own), fromQString(data));
    notPut = renewShippedFiles(files_, folders_, ProgramVersion);
    return folders_.work;
}

std::string QtShell::shippedFolder() {
    return folders_.share;
}

std::string QtShell::specialFolder(int number) {
    if (number == PicturesFolder)
        return fromQString(QStandardPaths::writableLocation(QStandardPaths::PicturesLocation));
    if (number != DocumentsFolder) return "";
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    if (documents.isEmpty() || !QDir().mkpath(documents)) return "";
    return fromQString(documents);
}

std::string QtShell::computerName() {
    return fromQString(QSysInfo::machineHostName());
}

bool QtShell::onlyInstance() {
    QString folder = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    if (folder.isEmpty()) folder = QDir::tempPath();
    lock_ = std::make_unique<QLockFile>(folder + "/ladrix.lock");
    lock_->setStaleLockTime(0);
    if (lock_->tryLock(0)) return true;
    // A folder that takes no lock file must not keep the program from starting.
    return lock_->error() != QLockFile::LockFailedError;
}

bool QtShell::open(const std::string& target) {
    const QString text = toQString(target);
    const bool isFile = QFileInfo::exists(text);
    return QDesktopServices::openUrl(isFile ? QUrl::fromLocalFile(text) : QUrl(text));
}

void QtShell::createShortcut() {
    const QString desktop = QStandardPaths::writableLocation(QStandardPaths::DesktopLocation);
    QDir().mkpath(desktop);
    QFile file(desktop + "/Ladrix.desktop");
    const QByteArray entry = "[Desktop Entry]\nType=Application\nName=Ladrix\nExec=\"" +
                             QCoreApplication::applicationFilePath().toUtf8() +
                             "\"\nTerminal=false\nCategories=Graphics;Engineering;\n";
    if (!file.open(QIODevice::WriteOnly) || file.write(entry) != entry.size() || !file.flush())
        throw Failure{failure::PathFileAccess,
                      fromQString(file.fileName() + ": " + file.errorString())};
    file.setPermissions(file.permissions() | QFileDevice::ExeOwner | QFileDevice::ExeUser);
}

void QtShell::endProgram() {
    if (ended) ended();
}

void QtTimers::start(int timer, int milliseconds, std::function<void()> expired) {
    const auto [place, isNew] = timers_.try_emplace(timer);
    Entry& entry = place->second;
    entry.expired = std::move(expired);
    if (isNew) {
        entry.clock.setSingleShot(true);
        QObject::connect(&entry.clock, &QTimer::timeout, [this, &entry] { expire(entry); });
    }
    entry.clock.start(milliseconds);
}

void QtTimers::expire(Entry& entry) {
    const auto call = entry.expired;  // it may start the timer anew
    call();
    if (afterExpiry) afterExpiry();
}

void QtTimers::stop(int timer) {
    if (const auto found = timers_.find(timer); found != timers_.end()) found->second.clock.stop();
}

QtPlatform::QtPlatform() {
    platform.picLX = &picLX;
    platform.dialogs = &dialogs;
    platform.files = &files;
    platform.clipboard = &clipboard;
    platform.images = &images;
    images.tell = [this](std::string_view text) { platform.tell(text); };
    platform.fonts = &fonts;
    platform.shell = &shell;
    platform.timers = &timers;
    platform.pageFiles = &pageFiles;
    platform.printers = &printers;
    const QSize screen = QGuiApplication::primaryScreen()->size();
    platform.screen.Width = static_cast<Single>(screen.width()) * TwipsPerPixel;
    platform.screen.Height = static_cast<Single>(screen.height()) * TwipsPerPixel;
    platform.locale.decimalMark = QLocale().decimalPoint() == "," ? ',' : '.';
    platform.locale.generalDate = &generalDate;
}

}  // namespace ladrix
