// Dir1: the present folder as a row of buttons, one for each folder from the root down, and as a
// line of text for who would rather type it.
#pragma once

#include <QList>
#include <QWidget>
#include <string>
#include <vector>

#include "browser/BrowserFolders.h"

class QLineEdit;
class QMenu;
class QToolButton;

namespace ladrix {

class PathBar final : public QWidget {
    Q_OBJECT

  public:
    explicit PathBar(QWidget* parent);

    void setPath(std::vector<PathPart> parts);
    // Shows the path as text, all of it marked.
    void edit();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  signals:
    void folderChosen(const std::string& folder);
    void pathTyped(const std::string& path);
    void editEnded();

  protected:
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QToolButton* addButton(const QString& text);
    void endEdit();
    bool takeKey(int key);
    void arrange();

    std::vector<PathPart> parts_;
    QToolButton* more_;  // the folders that have no room
    QMenu* moreMenu_;
    QList<QToolButton*> buttons_;  // one per part
    QLineEdit* text_;
};

}  // namespace ladrix
