#include "qt/ProgramFolder.h"

#include <QCryptographicHash>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QMap>
#include <QSaveFile>

#include "platform/Types.h"
#include "qt/QtText.h"

namespace ladrix {

namespace {

// The account of what was put there: the version, then "sum name" for each file.
constexpr auto AccountName = ".shipped";

struct Account {
    QString version;
    QMap<QString, QByteArray> sums;
};

[[noreturn]] void fail(const QFileDevice& file) {
    throw Failure{failure::PathFileAccess,
                  fromQString(file.fileName() + ": " + file.errorString())};
}

QByteArray readAll(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) fail(file);
    return file.readAll();
}

QByteArray sumOf(const QByteArray& content) {
    return QCryptographicHash::hash(content, QCryptographicHash::Sha256).toHex();
}

Account readAccount(const QString& target) {
    Account account;
    QFile file(target + '/' + AccountName);
    if (!file.open(QIODevice::ReadOnly)) return account;
    account.version = QString::fromUtf8(file.readLine()).trimmed();
    while (!file.atEnd()) {
        const QByteArray line = file.readLine().trimmed();
        const auto blank = line.indexOf(' ');
        if (blank > 0) account.sums[QString::fromUtf8(line.mid(blank + 1))] = line.left(blank);
    }
    return account;
}

void write(const QString& path, const QByteArray& content) {
    QDir().mkpath(QFileInfo(path).path());
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size() || !file.commit())
        fail(file);
}

void writeAccount(const QString& target, const Account& account) {
    QByteArray text = account.version.toUtf8() + '\n';
    for (auto entry = account.sums.begin(); entry != account.sums.end(); ++entry)
        text += entry.value() + ' ' + entry.key().toUtf8() + '\n';
    write(target + '/' + AccountName, text);
}

// `formerSum` is that of what was put there last, empty if nothing was. A renewal that did not come
// to its end leaves files that are new already.
bool isTheUsers(const QString& path, const QByteArray& formerSum, const QByteArray& newSum) {
    if (!QFileInfo::exists(path)) return !formerSum.isEmpty();
    const QByteArray sum = sumOf(readAll(path));
    return sum != formerSum && sum != newSum;
}

bool worksFrom(const QString& folder) {
    return QFileInfo(folder).isWritable();
}

}  // namespace

void renewFromShare(const QString& share, const QString& target, const QString& version) {
    Account account = readAccount(target);
    if (account.version == version) return;
    const QDir root(share);
    QDirIterator files(share, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString source = files.next();
        const QString name = root.relativeFilePath(source);
        const QString path = target + '/' + name;
        const QByteArray content = readAll(source), sum = sumOf(content);
        if (isTheUsers(path, account.sums.value(name), sum)) continue;
        write(path, content);
        account.sums[name] = sum;
    }
    account.version = version;
    writeAccount(target, account);
}

QString settleProgramFolder(const QString& binaries, const QString& data, const QString& version) {
    const QString share = QDir::cleanPath(binaries + "/../share/ladrix");
    const bool installed = QFileInfo(share).isDir();
    if (!installed && worksFrom(binaries)) return binaries;
    if (!QDir().mkpath(data))
        throw Failure{failure::PathNotFound, fromQString(data + ": cannot be made")};
    if (installed) renewFromShare(share, data, version);
    return data;
}

}  // namespace ladrix
