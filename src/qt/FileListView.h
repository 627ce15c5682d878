// FileList1: the browser's list as a table of names, dates and sizes.
#pragma once

#include <QAbstractTableModel>
#include <QTreeView>

#include "browser/FileBrowser.h"

namespace ladrix {

// Shows the entries as they stand in the state; told to look again whenever they have changed. A
// box may come up in between: until then the rows are as many as they were, those without an entry
// empty.
class FileListModel final : public QAbstractTableModel {
    Q_OBJECT

  public:
    enum Column { Name, Modified, Size, ColumnCount };

    explicit FileListModel(const FileBrowser& browser, QObject* parent);
    void lookAgain();

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  private:
    const FileBrowser& browser_;
    int rows_ = 0;
};

// What stands in the place of a list or a sheet without entries.
void paintEmptyFolder(QAbstractScrollArea& list);

class FileListView final : public QTreeView {
    Q_OBJECT

  public:
    FileListView(const FileBrowser& browser, QWidget* parent);

    // The list, the mark and the sorting as the state has them; no signal comes of it.
    void showState();
    int markedRow() const;  // -1: none

  signals:
    void marked();  // by the user; arrives when the event that did it is over
    void chosen(int row);
    void parentWanted();
    void columnClicked(ladrix::BrowserOrder order);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    void fitColumns();

    const FileBrowser& browser_;
    FileListModel* model_;
    unsigned shownVersion_ = 0;
    bool showing_ = false;
};

}  // namespace ladrix
