// Any bytes as the file of the favourite folders, up to the first 0; what follows are gestures on
// the dialog, one a byte, beside a list that is changed by the same gestures. The first byte
// chooses whether the disk is full.
#include "browser/Favorites.h"

#include <algorithm>
#include <cstdint>

#include "FewFiles.h"
#include "browser/FileBrowser.h"

namespace {

using namespace ladrix;
using Folders = std::vector<std::string>;

constexpr std::size_t MostGestures = 16;

class Session {
  public:
    Session() { editor_.AppFilePath = "/program/"; }

    void run(const fuzz::Input& input) {
        machine_.begin(input);
        const std::size_t end = std::min(input.text.find('\0'), input.text.size());
        const std::string content = input.text.substr(0, end);
        file() = content;
        files_.full = input.chosen(1);
        readFirst(content);
        frmFavorites_Load(form_, favorites_);
        for (const char gesture : std::string_view(input.text).substr(end, MostGestures)) {
            apply(static_cast<unsigned char>(gesture), content);
            check();
        }
        leave();
    }

  private:
    std::optional<std::string>& file() { return files_.content(0); }
    int last() const { return static_cast<int>(expected_.size()) - 1; }

    // What is read is what is written for it, and reading writes nothing.
    void readFirst(const std::string& content) {
        ReadFavorites(favorites_, editor_);
        expected_ = favorites_.FavoriteFolders;
        changed_ = false;
        fuzz::require(file() == content && machine_.reports == 0);
        for (const std::string& folder : expected_)
            fuzz::require(!folder.empty() && folder.find('\n') == std::string::npos);
        file() = fuzz::linesText(expected_);
        ReadFavorites(favorites_, editor_);
        fuzz::require(favorites_.FavoriteFolders == expected_);
    }

    // Twenty rows can be chosen; those that are not there stand for none.
    void apply(unsigned gesture, const std::string& content) {
        switch (gesture % 6) {
            case 0:
                return select(static_cast<int>(gesture / 6 % 21) - 1);
            case 1:
                return move(-1);
            case 2:
                return move(1);
            case 3:
                return remove();
            case 4:
                return add(content.substr(0, gesture / 6));
            default:
                return save();
        }
    }

    void select(int row) {
        if (row <= last()) lstFavorites_Click(form_, row);
    }

    void move(int by) {
        const int from = form_.lstFavorites.ListIndex, to = from + by;
        if (from >= 0 && to >= 0 && to <= last()) {
            std::swap(expected_[static_cast<std::size_t>(from)],
                      expected_[static_cast<std::size_t>(to)]);
            changed_ = true;
        }
        if (by < 0)
            frmFavorites_cmdMoveUp_Click(form_, favorites_);
        else
            frmFavorites_cmdMoveDown_Click(form_, favorites_);
    }

    void remove() {
        const int row = form_.lstFavorites.ListIndex;
        if (row >= 0) {
            expected_.erase(expected_.begin() + row);
            changed_ = true;
        }
        frmFavorites_cmdRemove_Click(form_, favorites_);
    }

    void add(const std::string& folder) {
        const bool fits = folder.find_first_of("\r\n") == std::string::npos &&
                          std::find(expected_.begin(), expected_.end(), folder) == expected_.end();
        if (folder.empty()) return;  // the browser is always in one
        fuzz::require(addFavorite(favorites_, editor_, folder) == fits);
        if (!fits) return;
        expected_.push_back(folder);
        changed_ = true;
        frmFavorites_Load(form_, favorites_);
    }

    void save() {
        const auto before = file();
        const int reports = machine_.reports;
        frmFavorites_cmdSave_Click(form_, favorites_, browser_, editor_);
        if (files_.full) {
            fuzz::require(file() == before && machine_.reports == reports + 1);
        } else {
            fuzz::require(file() == fuzz::linesText(expected_));
            changed_ = false;
        }
    }

    void check() const {
        fuzz::require(favorites_.FavoriteFolders == expected_);
        fuzz::require(form_.lstFavorites.List == expected_);
        fuzz::require(favorites_.FavoriteCount == last() + 1);
        fuzz::require(favorites_.FavoritesChanged == changed_);
        const int row = form_.lstFavorites.ListIndex;
        fuzz::require(row >= -1 && row <= last());
        fuzz::require(form_.cmdRemove.Enabled == (row >= 0));
        fuzz::require(form_.cmdMoveUp.Enabled == (row > 0));
        fuzz::require(form_.cmdMoveDown.Enabled == (row >= 0 && row < last()));
    }

    // Leaving without saving brings back what the file holds, and leaves it alone.
    void leave() {
        machine_.dialogs.answer = Answer::No;
        const auto before = file();
        fuzz::require(frmFavorites_QueryUnload(form_, favorites_, browser_, editor_));
        fuzz::require(file() == before && !favorites_.FavoritesChanged);
        fuzz::require(fuzz::linesText(favorites_.FavoriteFolders) == *file());
        // Nothing is kept, so that what a run has lost is seen.
        favorites_ = Favorites();
        form_ = FavoritesForm();
        expected_ = Folders();
        file().reset();
    }

    fuzz::FewFiles files_{{{"/program/", "Favorite Folders.hst"}}};
    fuzz::Machine machine_{files_};
    Editor editor_{machine_.platform};
    FileBrowser browser_;
    Favorites favorites_;
    FavoritesForm form_;
    Folders expected_;
    bool changed_ = false;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static Session session;
    session.run(fuzz::Input(data, size));
    return 0;
}
