#include "platform/FallbackRoot.h"

#include <unistd.h>

#include <filesystem>
#include <system_error>

#include "platform/Encoding.h"

namespace ladrix {

std::string fallbackRoot(Files& files, std::string_view folder) {
    std::error_code error;
    const std::string temporary = std::filesystem::temp_directory_path(error).string();
    if (error) throw Failure{failure::PathNotFound, "The system has no folder for temporary files"};
    const std::string shared = withSeparator(files, fromUtf8(temporary));
    if (files.ownerOf(shared + std::string(folder)) != FolderOwner::Others) return shared;
    const std::string own = shared + "ladrix-" + std::to_string(geteuid());
    const FolderOwner owner = files.ownerOf(own);
    if (owner == FolderOwner::Nobody) files.makeFolder(own, /*ownerOnly=*/true);
    if (owner == FolderOwner::Others)
        throw Failure{failure::PermissionDenied,
                      own + " is not a folder that you alone may write to"};
    return withSeparator(files, own);
}

}  // namespace ladrix
