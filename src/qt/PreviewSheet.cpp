#include "qt/PreviewSheet.h"

#include <QElapsedTimer>
#include <QKeyEvent>
#include <QPainter>
#include <QStyledItemDelegate>
#include <algorithm>

#include "browser/DrawingSketch.h"
#include "qt/FileIcons.h"
#include "qt/FileListView.h"
#include "qt/QtPainterPage.h"
#include "qt/QtText.h"
#include "qt/Theme.h"

namespace ladrix {

namespace {

constexpr int PageSide = 128;         // pixels of the longer side of a preview
constexpr int Gap = 2 * theme::Unit;  // around the page and its name
constexpr int LongestWork = 12;       // milliseconds before the window has its turn
constexpr int MostTiles = 400;        // kept, some 100 kB each
constexpr double ThinnestPen = 0.5;   // pixels
const QColor DamagedInk(0xb3, 0x26, 0x1e);

void paintNote(QPainter& painter, const QRect& box, const QString& text, const QColor& ink) {
    painter.setPen(theme::PageEdge);
    painter.setBrush(Qt::white);
    painter.drawRect(box.adjusted(0, 0, -1, -1));
    painter.setPen(ink);
    painter.drawText(box.adjusted(Gap, Gap, -Gap, -Gap), Qt::AlignCenter | Qt::TextWordWrap, text);
}

class TileDelegate final : public QStyledItemDelegate {
  public:
    explicit TileDelegate(PreviewSheet& sheet) : QStyledItemDelegate(&sheet), sheet_(sheet) {}

    QSize sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const override {
        return sheet_.tileSize();
    }

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        painter->save();
        const bool selected = option.state & QStyle::State_Selected;
        const QRect cell = option.rect.adjusted(Gap / 2, Gap / 2, -Gap / 2, -Gap / 2);
        if (selected) {
            painter->setRenderHint(QPainter::Antialiasing);
            painter->setPen(Qt::NoPen);
            painter->setBrush(option.palette.highlight());
            painter->drawRoundedRect(cell, theme::Radius, theme::Radius);
            painter->setRenderHint(QPainter::Antialiasing, false);
        }
        const int line = option.fontMetrics.height();
        const QRect room = cell.adjusted(Gap / 2, Gap / 2, -Gap / 2, -Gap - line);
        paintPage(*painter, room, option, index);
        const QRect name(cell.left() + Gap / 2, cell.bottom() - line - Gap / 4, cell.width() - Gap,
                         line);
        painter->setPen(
            option.palette.color(selected ? QPalette::HighlightedText : QPalette::Text));
        painter->drawText(
            name, Qt::AlignCenter,
            option.fontMetrics.elidedText(index.data().toString(), Qt::ElideMiddle, name.width()));
        painter->restore();
    }

  private:
    void paintPage(QPainter& painter, const QRect& room, const QStyleOptionViewItem& option,
                   const QModelIndex& index) const {
        const PreviewSheet::Tile tile = sheet_.tile(index.row());
        QRect page(QPoint(), QSize(PageSide * 3 / 4, PageSide));
        page.moveCenter(room.center());
        switch (tile.state) {
            case PreviewSheet::Tile::State::Damaged:
                return paintNote(painter, page, QObject::tr("\u2715\nCannot be read"), DamagedInk);
            case PreviewSheet::Tile::State::Large:
                return paintNote(painter, page, QObject::tr("Large drawing"), theme::TextQuiet);
            case PreviewSheet::Tile::State::Awaited:
                return paintNote(painter, page, {}, theme::TextQuiet);
            case PreviewSheet::Tile::State::Ready:
                break;
        }
        if (tile.page.isNull()) {
            const int side = PageSide / 2;
            QRect icon(0, 0, side, side);
            icon.moveCenter(room.center());
            const auto mode =
                option.state & QStyle::State_Selected ? QIcon::Selected : QIcon::Normal;
            return fileIcon(FileIcon::Folder).paint(&painter, icon, Qt::AlignCenter, mode);
        }
        page = QRect(QPoint(), tile.page.deviceIndependentSize().toSize());
        page.moveCenter(room.center());
        painter.drawPixmap(page.topLeft(), tile.page);
        painter.setPen(theme::PageEdge);
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(page.adjusted(-1, -1, 0, 0));
    }

    PreviewSheet& sheet_;
};

}  // namespace

PreviewSheet::PreviewSheet(Program& program, QWidget* parent)
    : QListView(parent),
      program_(program),
      browser_(program.frmFile),
      model_(new FileListModel(browser_, this)) {
    setModel(model_);
    setItemDelegate(new TileDelegate(*this));
    setViewMode(IconMode);
    setMovement(Static);
    setResizeMode(Adjust);
    setUniformItemSizes(true);
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    setVerticalScrollMode(ScrollPerPixel);
    connect(&idle_, &QTimer::timeout, this, &PreviewSheet::makeAwaited);
    // Queued, because the handler may bring up a box in the middle of a press of the mouse.
    connect(
        selectionModel(), &QItemSelectionModel::selectionChanged, this,
        [this] {
            if (!showing_ && markedRow() != browser_.Selected) emit marked();
        },
        Qt::QueuedConnection);
    connect(this, &QListView::doubleClicked, this,
            [this](const QModelIndex& index) { emit chosen(index.row()); });
}

QSize PreviewSheet::tileSize() const {
    return {PageSide + 3 * Gap, PageSide + 3 * Gap + fontMetrics().height()};
}

void PreviewSheet::showState() {
    showing_ = true;
    if (shownVersion_ != browser_.ListVersion) {
        shownVersion_ = browser_.ListVersion;
        if (folder_ != browser_.BrowserFolder) tiles_.clear();
        folder_ = browser_.BrowserFolder;
        awaited_.clear();
        model_->lookAgain();
        scrollToTop();
    }
    if (markedRow() != browser_.Selected) {
        const QModelIndex index = model_->index(browser_.Selected, 0);
        selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect);
        if (index.isValid()) scrollTo(index);
    }
    showing_ = false;
}

int PreviewSheet::markedRow() const {
    const QModelIndexList rows = selectionModel()->selectedIndexes();
    return rows.isEmpty() ? -1 : rows.front().row();
}

QString PreviewSheet::keyOf(const FileEntry& entry) const {
    return toQString(entry.name) + QLatin1Char('/') + QString::number(entry.size) +
           QLatin1Char('/') +
           QString::number(static_cast<qint64>(entry.modified.time_since_epoch().count()));
}

PreviewSheet::Tile PreviewSheet::tile(int row) {
    if (row < 0 || row >= static_cast<int>(browser_.entries.size())) return {};
    const FileEntry& entry = browser_.entries[static_cast<std::size_t>(row)];
    if (entry.isFolder) return {Tile::State::Ready, {}};
    if (entry.size > LargestSketch) return {Tile::State::Large, {}};
    const auto known = tiles_.constFind(keyOf(entry));
    if (known != tiles_.constEnd()) return *known;
    if (!awaited_.contains(row)) awaited_.append(row);
    idle_.start(0);
    return {};
}

// Rows that have left the sight meanwhile are dropped: they are ordered again when they come back.
void PreviewSheet::makeAwaited() {
    QElapsedTimer work;
    work.start();
    while (!awaited_.isEmpty() && work.elapsed() < LongestWork) {
        const int row = awaited_.takeFirst();
        if (row >= static_cast<int>(browser_.entries.size())) continue;
        const QRect place = visualRect(model_->index(row, 0));
        if (!viewport()->rect().intersects(place)) continue;
        const FileEntry& entry = browser_.entries[static_cast<std::size_t>(row)];
        if (tiles_.size() == MostTiles) tiles_.clear();  // those in sight are ordered again
        tiles_.insert(keyOf(entry), made(entry));
        viewport()->update(place);
    }
    if (awaited_.isEmpty()) idle_.stop();
}

PreviewSheet::Tile PreviewSheet::made(const FileEntry& entry) {
    const auto sketch = readSketch(program_.editor, browser_.BrowserFolder + entry.name);
    if (!sketch) return {Tile::State::Damaged, {}};
    const QSizeF inches(static_cast<double>(sketch->page.PageWidth),
                        static_cast<double>(sketch->page.PageHeight));
    const QSize size = inches.scaled(QSizeF(PageSide, PageSide), Qt::KeepAspectRatio).toSize();
    const qreal ratio = devicePixelRatioF();
    QPixmap page(size * ratio);
    page.setDevicePixelRatio(ratio);
    page.fill(Qt::white);
    QPainter painter(&page);
    PageView view;
    view.scale = size.width() / inches.width();
    view.penUnit = std::max(view.scale / 96, ThinnestPen / ratio);
    view.target = QRectF(QPointF(), QSizeF(size));
    QtPainterPage surface("picPreview");
    surface.reset(&painter, view);
    drawSketch(program_.editor, *sketch, surface);
    surface.flush();
    painter.end();
    return {Tile::State::Ready, page};
}

void PreviewSheet::paintEvent(QPaintEvent* event) {
    QListView::paintEvent(event);
    if (model_->rowCount() == 0) paintEmptyFolder(*this);
}

void PreviewSheet::keyPressEvent(QKeyEvent* event) {
    const bool plain = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    // Kept from the dialog's default button, which would act a second time.
    if (plain && enter && markedRow() >= 0)
        emit chosen(markedRow());
    else if (plain && event->key() == Qt::Key_Backspace)
        emit parentWanted();
    else
        QListView::keyPressEvent(event);
}

}  // namespace ladrix
