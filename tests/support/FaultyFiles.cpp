#include "support/FaultyFiles.h"

#include <algorithm>
#include <utility>

namespace ladrix::test {

namespace {

bool changesTheDisk(Operation operation) {
    return operation != Operation::List && operation != Operation::Status &&
           operation != Operation::Read && operation != Operation::Writable;
}

}  // namespace

void FaultyFiles::fail(Operation operation, Failure failure, std::string part) {
    faults_.push_back({operation, std::move(failure), std::move(part), 0, true});
}

void FaultyFiles::failOnce(Operation operation, Failure failure, int passed) {
    faults_.push_back({operation, std::move(failure), {}, passed, false});
}

void FaultyFiles::heal() {
    faults_.clear();
}

int FaultyFiles::count(Operation operation) const {
    return static_cast<int>(std::count_if(
        calls.begin(), calls.end(), [&](const Call& call) { return call.operation == operation; }));
}

void FaultyFiles::enter(Operation operation, const std::string& path) {
    calls.push_back({operation, path});
    if (beforeChange && changesTheDisk(operation)) beforeChange();
    for (auto fault = faults_.begin(); fault != faults_.end(); ++fault) {
        if (fault->operation != operation || path.find(fault->part) == std::string::npos) continue;
        if (fault->passed-- > 0) continue;
        const Failure failure = fault->failure;
        if (!fault->lasting) faults_.erase(fault);
        throw failure;
    }
}

char FaultyFiles::separator() const {
    return disk_.separator();
}

std::vector<FileEntry> FaultyFiles::list(const std::string& folder) {
    enter(Operation::List, folder);
    return disk_.list(folder);
}

std::vector<std::string> FaultyFiles::fileNames(const std::string& folder) {
    enter(Operation::List, folder);
    return disk_.fileNames(folder);
}

std::optional<FileEntry> FaultyFiles::status(const std::string& path) {
    enter(Operation::Status, path);
    return disk_.status(path);
}

bool FaultyFiles::isLink(const std::string& path) {
    enter(Operation::Status, path);
    return disk_.isLink(path);
}

std::string FaultyFiles::read(const std::string& path, std::uintmax_t limit) {
    enter(Operation::Read, path);
    return disk_.read(path, limit);
}

void FaultyFiles::replace(const std::string& path, std::string_view content, bool ownerOnly) {
    enter(Operation::Replace, path);
    disk_.replace(path, content, ownerOnly);
}

void FaultyFiles::append(const std::string& path, std::string_view content) {
    enter(Operation::Append, path);
    disk_.append(path, content);
}

void FaultyFiles::copy(const std::string& from, const std::string& to) {
    enter(Operation::Copy, to);
    disk_.copy(from, to);
}

void FaultyFiles::remove(const std::string& path) {
    enter(Operation::Remove, path);
    disk_.remove(path);
}

void FaultyFiles::rename(const std::string& from, const std::string& to) {
    enter(Operation::Rename, to);
    disk_.rename(from, to);
}

void FaultyFiles::makeFolder(const std::string& path, bool ownerOnly) {
    enter(Operation::MakeFolder, path);
    disk_.makeFolder(path, ownerOnly);
}

void FaultyFiles::removeFolder(const std::string& path) {
    enter(Operation::RemoveFolder, path);
    disk_.removeFolder(path);
}

bool FaultyFiles::writable(const std::string& folder) {
    try {
        enter(Operation::Writable, folder);
    } catch (const Failure&) {
        return false;
    }
    return disk_.writable(folder);
}

}  // namespace ladrix::test
