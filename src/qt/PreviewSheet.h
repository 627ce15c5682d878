// cmdPreviewAll: every drawing of the folder as a small preview on one scrolled sheet. A preview is
// made when its place has come into sight and nothing else is to be done.
#pragma once

#include <QHash>
#include <QListView>
#include <QPixmap>
#include <QTimer>

#include "app/Program.h"

namespace ladrix {

class FileListModel;

class PreviewSheet final : public QListView {
    Q_OBJECT

  public:
    PreviewSheet(Program& program, QWidget* parent);

    // The list and the mark as the state has them; no signal comes of it.
    void showState();
    int markedRow() const;  // -1: none

    // A drawing as it stands on the sheet. Asking for one that is not made yet orders it.
    struct Tile {
        enum class State { Awaited, Ready, Damaged, Large } state = State::Awaited;
        QPixmap page;
    };
    Tile tile(int row);
    QSize tileSize() const;

  signals:
    void marked();  // by the user; arrives when the event that did it is over
    void chosen(int row);
    void parentWanted();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    QString keyOf(const FileEntry& entry) const;
    void makeAwaited();
    Tile made(const FileEntry& entry);

    Program& program_;
    const FileBrowser& browser_;
    FileListModel* model_;
    QHash<QString, Tile> tiles_;  // of the present folder, by name, size and date
    QList<int> awaited_;          // rows
    QTimer idle_;
    std::string folder_;
    unsigned shownVersion_ = 0;
    bool showing_ = false;
};

}  // namespace ladrix
