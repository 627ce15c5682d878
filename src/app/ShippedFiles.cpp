#include "app/ShippedFiles.h"

#include <algorithm>
#include <map>
#include <optional>
#include <utility>

#include "platform/Encoding.h"
#include "platform/Sha256.h"

namespace ladrix {

namespace {

constexpr std::string_view AccountName = ".shipped";
constexpr std::size_t SumLength = 64;
constexpr char PlannedMark = '+';

// The sums of one file; "" for none.
struct Sums {
    std::string put;      // it stood there whole
    std::string planned;  // about to be written, or written by a run that was killed
};

struct Account {
    std::string version;  // that all files are of; "" if some could not be put
    std::map<std::string, Sums> files;
};

std::string withoutSeparator(std::string folder) {
    folder.pop_back();
    return folder;
}

bool isFolder(Files& files, const std::string& folder) {
    const auto status = files.status(withoutSeparator(folder));
    return status && status->isFolder;
}

// With those above it. `folder` ends in the separator.
void makeFolders(Files& files, const std::string& folder) {
    const std::string path = withoutSeparator(folder);
    if (path.empty() || isFolder(files, folder)) return;
    makeFolders(files, path.substr(0, path.rfind(files.separator()) + 1));
    files.makeFolder(path);
}

// ---- The account

bool isSum(std::string_view text) {
    return text.size() == SumLength &&
           text.find_first_not_of("0123456789abcdef") == std::string_view::npos;
}

void takeLine(Account& account, std::string_view line) {
    const bool planned = line.starts_with(PlannedMark);
    if (planned) line.remove_prefix(1);
    if (line.size() < SumLength + 2 || line[SumLength] != ' ') return;
    const std::string_view sum = line.substr(0, SumLength);
    if (!isSum(sum)) return;
    Sums& sums = account.files[fromUtf8(line.substr(SumLength + 1))];
    (planned ? sums.planned : sums.put) = sum;
}

Account accountOf(std::string_view text) {
    Account account;
    const std::size_t head = std::min(text.find('\n'), text.size());
    account.version = text.substr(0, head);
    text.remove_prefix(head);
    while (!text.empty()) {
        text.remove_prefix(1);
        const std::size_t end = std::min(text.find('\n'), text.size());
        takeLine(account, text.substr(0, end));
        text.remove_prefix(end);
    }
    return account;
}

std::string textOf(const Account& account) {
    std::string text = account.version + '\n';
    for (const auto& [name, sums] : account.files) {
        const std::string rest = ' ' + toUtf8(name) + '\n';
        if (!sums.put.empty()) text += sums.put + rest;
        if (!sums.planned.empty()) text += PlannedMark + sums.planned + rest;
    }
    return text;
}

// ---- What becomes of a file

enum class Fate {
    Keep,   // it is the user's, or its absence is
    Adopt,  // it is the new one already
    Put,
};

Fate fateOf(Files& files, const std::string& path, const Sums& known, const std::string& newSum) {
    const auto status = files.status(path);
    if (!status) return known.put.empty() ? Fate::Put : Fate::Keep;
    if (status->isFolder) return Fate::Keep;
    if (status->size == 0) return Fate::Put;
    const std::string sum = sha256(files.read(path));
    if (sum == newSum) return Fate::Adopt;
    return sum == known.put || sum == known.planned ? Fate::Put : Fate::Keep;
}

// ---- Renewing

// One pass over the files. Whatever fails is noted and the rest goes on.
class Renewal {
  public:
    Renewal(Files& files, const ShippedFolders& folders) : files_(files), folders_(folders) {}

    // False, with a note, if there is an account that cannot be read: nothing may be touched then.
    bool readAccount() {
        return noting(std::string(AccountName), [&] {
            if (files_.status(accountPath())) written_ = files_.read(accountPath());
            account = accountOf(written_);
        });
    }

    bool isUpToDate(std::string_view version) {
        if (account.version != version) return false;
        try {
            return std::all_of(account.files.begin(), account.files.end(), [&](const auto& file) {
                if (!file.second.planned.empty()) return false;
                const auto status = files_.status(folders_.work + file.first);
                return !status || status->isFolder || status->size > 0;
            });
        } catch (const Failure&) {
            return false;
        }
    }

    std::vector<std::string> listShare() {
        std::vector<std::string> names;
        noting(folders_.share, [&] { names = shippedNames(files_, folders_.share); });
        return names;
    }

    // Whatever stands there, if `always`.
    void consider(const std::string& name, bool always) {
        noting(name, [&] {
            std::string content = files_.read(folders_.share + name);
            if (content.empty())
                throw Failure{failure::PathFileAccess, name + ": The installed file is empty"};
            const std::string sum = sha256(content);
            const Fate fate =
                always ? Fate::Put : fateOf(files_, folders_.work + name, sumsOf(name), sum);
            if (fate == Fate::Adopt) account.files[name] = {sum, {}};
            if (fate == Fate::Keep) dropPlan(name);
            if (fate != Fate::Put) return;
            account.files[name].planned = sum;
            toPut_.emplace_back(name, std::move(content));
        });
    }

    // A plan that could not be written down costs only the certainty after a kill. What could not
    // be put stays planned: a failure may come after the file has its new content.
    void putAll() {
        if (toPut_.empty()) return;
        try {
            makeFolders(files_, folders_.work);
            writeAccount();
        } catch (const Failure&) {
        }
        for (const auto& [name, content] : toPut_)
            if (noting(name, [&] { put(name, content); }))
                account.files[name] = {account.files[name].planned, {}};
    }

    void close() {
        noting(std::string(AccountName), [&] { writeAccount(); });
    }

    Account account;
    std::vector<NotPut> notPut;

  private:
    template <class Steps>
    bool noting(const std::string& name, const Steps& steps) {
        try {
            steps();
            return true;
        } catch (const Failure& failure) {
            notPut.push_back({name, failure});
            return false;
        }
    }

    std::string accountPath() const { return folders_.work + std::string(AccountName); }

    Sums sumsOf(const std::string& name) const {
        const auto found = account.files.find(name);
        return found == account.files.end() ? Sums{} : found->second;
    }

    void dropPlan(const std::string& name) {
        const auto found = account.files.find(name);
        if (found == account.files.end()) return;
        found->second.planned.clear();
        if (found->second.put.empty()) account.files.erase(found);
    }

    void put(const std::string& name, const std::string& content) {
        const std::string path = folders_.work + name;
        makeFolders(files_, path.substr(0, path.rfind(files_.separator()) + 1));
        files_.replace(path, content);
    }

    void writeAccount() {
        const std::string text = textOf(account);
        if (text == written_) return;
        files_.replace(accountPath(), text);
        written_ = text;
    }

    Files& files_;
    const ShippedFolders& folders_;
    std::vector<std::pair<std::string, std::string>> toPut_;  // name, content
    std::string written_;                                     // the account on disk
};

void addNames(Files& files, const std::string& share, const std::string& below,
              std::vector<std::string>& names) {
    for (const FileEntry& entry : files.list(share + below)) {
        if (entry.isFolder)
            addNames(files, share, below + entry.name + files.separator(), names);
        else
            names.push_back(below + entry.name);
    }
}

// Where the system cannot tell, there is one: the program's own folder is then left alone.
bool isInstalled(Files& files, const std::string& share) {
    try {
        return isFolder(files, share);
    } catch (const Failure&) {
        return true;
    }
}

// ---- Telling

// A failure's text is the file and the system's reason.
std::string reasonOf(const Failure& failure) {
    const std::size_t end = failure.text.rfind(": ");
    return end == std::string::npos ? failure.text : failure.text.substr(end + 2);
}

std::string someOf(const std::vector<std::string>& names) {
    constexpr std::size_t mostNamed = 3;
    std::string text;
    for (std::size_t i = 0; i < std::min(names.size(), mostNamed); ++i)
        text += (i == 0 ? "" : ", ") + names[i];
    if (names.size() <= mostNamed) return text;
    const std::size_t others = names.size() - mostNamed;
    return text + " and " + std::to_string(others) + (others == 1 ? " other file" : " other files");
}

}  // namespace

ShippedFolders shippedFolders(Files& files, const std::string& binaries, const std::string& data) {
    const char separator = files.separator();
    const std::string own = withSeparator(files, binaries);
    const std::string prefix = own.substr(0, own.rfind(separator, own.size() - 2) + 1);
    const std::string share = prefix + "share" + separator + "ladrix" + separator;
    if (isInstalled(files, share)) return {share, withSeparator(files, data)};
    return {"", files.writable(own) ? own : withSeparator(files, data)};
}

std::vector<NotPut> renewShippedFiles(Files& files, const ShippedFolders& folders,
                                      std::string_view version) {
    if (folders.share.empty()) return {};
    Renewal renewal(files, folders);
    if (!renewal.readAccount()) return renewal.notPut;
    if (renewal.isUpToDate(version)) return {};
    for (const std::string& name : renewal.listShare())
        renewal.consider(name, false);
    renewal.account.version.clear();
    renewal.putAll();
    if (renewal.notPut.empty()) renewal.account.version = version;
    renewal.close();
    return renewal.notPut;
}

std::vector<NotPut> putShippedFiles(Files& files, const ShippedFolders& folders,
                                    const std::vector<std::string>& names) {
    Renewal renewal(files, folders);
    if (!renewal.readAccount()) return renewal.notPut;
    for (const std::string& name : names)
        renewal.consider(name, true);
    renewal.putAll();
    renewal.close();
    return renewal.notPut;
}

std::vector<std::string> shippedNames(Files& files, const std::string& share) {
    std::vector<std::string> names;
    addNames(files, share, {}, names);
    std::sort(names.begin(), names.end());
    return names;
}

Failure asOneFailure(const std::vector<NotPut>& notPut) {
    std::vector<std::pair<std::string, std::vector<std::string>>> reasons;
    for (const NotPut& each : notPut) {
        const std::string reason = reasonOf(each.failure);
        auto place = std::find_if(reasons.begin(), reasons.end(),
                                  [&](const auto& known) { return known.first == reason; });
        if (place == reasons.end()) place = reasons.insert(place, {reason, {}});
        place->second.push_back(each.name);
    }
    std::string text;
    for (const auto& [reason, names] : reasons)
        text += (text.empty() ? "" : "; ") + someOf(names) + ": " + reason;
    return {notPut.empty() ? 0 : notPut.front().failure.number, text};
}

}  // namespace ladrix
