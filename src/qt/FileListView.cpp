#include "qt/FileListView.h"

#include <QDateTime>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLocale>
#include <QPainter>
#include <QStyledItemDelegate>

#include "qt/FileIcons.h"
#include "qt/QtText.h"

namespace ladrix {

namespace {

// A name on one line, whatever characters the file system let into it.
QString shownName(const std::string& name) {
    QString text = toQString(name);
    for (QChar& c : text)
        if (c.category() == QChar::Other_Control || c == QChar::LineSeparator ||
            c == QChar::ParagraphSeparator)
            c = QChar::ReplacementCharacter;
    return text;
}

// The locale's short forms, without the seconds that some add.
QString dateText(const QDateTime& time) {
    const QLocale locale;
    QString form = locale.timeFormat(QLocale::ShortFormat);
    form.remove(QLatin1String(":ss"));
    return locale.toString(time.date(), QLocale::ShortFormat) + QLatin1Char(' ') +
           locale.toString(time.time(), form);
}

QDateTime localTime(FileTime time) {
    const auto since =
        std::chrono::duration_cast<std::chrono::milliseconds>(time.time_since_epoch());
    return QDateTime::fromMSecsSinceEpoch(since.count());
}

QString sizeText(const FileEntry& entry) {
    if (entry.isFolder) return {};
    const auto size = static_cast<qint64>(entry.size);
    return QLocale().formattedDataSize(size, 1, QLocale::DataSizeTraditionalFormat);
}

const QIcon& iconOf(const FileEntry& entry) {
    if (entry.isFolder) return fileIcon(FileIcon::Folder);
    const std::string extension = extensionOf(entry.name);
    if (extension == ".els") return fileIcon(FileIcon::Drawing);
    if (extension == ".tpl") return fileIcon(FileIcon::Template);
    if (extension == ".lib") return fileIcon(FileIcon::Library);
    const bool picture = matchesFilter(entry.name, traitsOf(BrowserMode::Picture).BrowserFilter) ||
                         extension == ".png" || extension == ".svg";
    return fileIcon(picture ? FileIcon::Picture : FileIcon::Page);
}

constexpr int RowMargin = 3;
constexpr int SmallestIcon = 16;
constexpr int FewestNameCharacters = 20;
constexpr int ColumnMarginCharacters = 4;

// Rows with room to breathe and to hit.
class RowDelegate final : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        return QStyledItemDelegate::sizeHint(option, index) + QSize(0, 2 * RowMargin);
    }
};

}  // namespace

FileListModel::FileListModel(const FileBrowser& browser, QObject* parent)
    : QAbstractTableModel(parent), browser_(browser) {}

void FileListModel::lookAgain() {
    beginResetModel();
    rows_ = static_cast<int>(browser_.entries.size());
    endResetModel();
}

int FileListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : rows_;
}

int FileListModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant FileListModel::data(const QModelIndex& index, int role) const {
    const auto row = static_cast<std::size_t>(index.row());
    if (!index.isValid() || row >= browser_.entries.size()) return {};
    const FileEntry& entry = browser_.entries[row];
    const bool isName = index.column() == Name;
    if (role == Qt::DecorationRole && isName) return iconOf(entry);
    if (role == Qt::ToolTipRole && isName) return plainTip(shownName(entry.name));
    if (role == Qt::TextAlignmentRole && index.column() == Size)
        return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    if (role != Qt::DisplayRole) return {};
    if (isName) return shownName(entry.name);
    return index.column() == Modified ? dateText(localTime(entry.modified)) : sizeText(entry);
}

QVariant FileListModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal) return {};
    if (role == Qt::TextAlignmentRole && section == Size)
        return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    if (role != Qt::DisplayRole) return {};
    return section == Name ? tr("Name") : section == Modified ? tr("Modified") : tr("Size");
}

FileListView::FileListView(const FileBrowser& browser, QWidget* parent)
    : QTreeView(parent), browser_(browser), model_(new FileListModel(browser, this)) {
    setModel(model_);
    setItemDelegate(new RowDelegate(this));
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setSelectionMode(SingleSelection);
    setSelectionBehavior(SelectRows);
    setEditTriggers(NoEditTriggers);
    setTextElideMode(Qt::ElideMiddle);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    header()->setStretchLastSection(false);
    header()->setSectionsMovable(false);
    header()->setSectionsClickable(true);
    header()->setSortIndicatorShown(true);
    header()->setHighlightSections(false);
    header()->setSectionResizeMode(FileListModel::Name, QHeaderView::Stretch);
    fitColumns();

    // Queued, because the handler may bring up a box in the middle of a press of the mouse.
    connect(
        selectionModel(), &QItemSelectionModel::selectionChanged, this,
        [this] {
            if (!showing_ && markedRow() != browser_.Selected) emit marked();
        },
        Qt::QueuedConnection);
    connect(this, &QTreeView::doubleClicked, this,
            [this](const QModelIndex& index) { emit chosen(index.row()); });
    connect(header(), &QHeaderView::sectionClicked, this, [this](int section) {
        emit columnClicked(section == FileListModel::Modified ? BrowserOrder::Modified
                           : section == FileListModel::Size   ? BrowserOrder::Size
                                                              : BrowserOrder::Name);
    });
}

void FileListView::showState() {
    showing_ = true;
    if (shownVersion_ != browser_.ListVersion) {
        shownVersion_ = browser_.ListVersion;
        model_->lookAgain();
        scrollToTop();
    }
    if (markedRow() != browser_.Selected) {
        const QModelIndex index = model_->index(browser_.Selected, 0);
        selectionModel()->setCurrentIndex(
            index, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
        if (index.isValid()) scrollTo(index);
    }
    const int column = browser_.sorting.order == BrowserOrder::Modified ? FileListModel::Modified
                       : browser_.sorting.order == BrowserOrder::Size   ? FileListModel::Size
                                                                        : FileListModel::Name;
    header()->setSortIndicator(
        column, browser_.sorting.descending ? Qt::DescendingOrder : Qt::AscendingOrder);
    showing_ = false;
}

int FileListView::markedRow() const {
    const QModelIndexList rows = selectionModel()->selectedRows();
    return rows.isEmpty() ? -1 : rows.front().row();
}

void paintEmptyFolder(QAbstractScrollArea& list) {
    QPainter painter(list.viewport());
    painter.setPen(list.palette().color(QPalette::PlaceholderText));
    painter.drawText(list.viewport()->rect(), Qt::AlignCenter | Qt::TextWordWrap,
                     QObject::tr("Nothing to choose in this folder."));
}

void FileListView::paintEvent(QPaintEvent* event) {
    QTreeView::paintEvent(event);
    if (model_->rowCount() == 0) paintEmptyFolder(*this);
}

void FileListView::keyPressEvent(QKeyEvent* event) {
    const bool plain = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const bool step = event->key() == Qt::Key_Down || event->key() == Qt::Key_Up;
    const bool first = markedRow() < 0 && currentIndex().row() <= 0 && model_->rowCount() > 0;
    // Kept from the dialog's default button, which would act a second time.
    if (plain && enter && markedRow() >= 0) {
        emit chosen(markedRow());
    } else if (plain && step && first) {
        // The first row may have the focus before it is marked.
        selectionModel()->setCurrentIndex(
            model_->index(0, 0), QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    } else if (plain && event->key() == Qt::Key_Backspace) {
        emit parentWanted();
    } else {
        QTreeView::keyPressEvent(event);
    }
}

void FileListView::changeEvent(QEvent* event) {
    QTreeView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) fitColumns();
}

void FileListView::resizeEvent(QResizeEvent* event) {
    QTreeView::resizeEvent(event);
    fitColumns();
}

// Dates and sizes as wide as the longest of the locale; where names would have too little room the
// size gives way, then the date.
void FileListView::fitColumns() {
    const QFontMetrics metrics = fontMetrics();
    const int icon = qMax(metrics.height(), SmallestIcon);
    setIconSize(QSize(icon, icon));
    int room = viewport()->width() - FewestNameCharacters * metrics.averageCharWidth();
    const auto fit = [&](int column, const QString& longest) {
        const QString head = model_->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
        const int widest =
            qMax(metrics.horizontalAdvance(longest), metrics.horizontalAdvance(head));
        const int width = widest + ColumnMarginCharacters * metrics.averageCharWidth();
        room -= width;
        setColumnHidden(column, room < 0);
        header()->setSectionResizeMode(column, QHeaderView::Fixed);
        header()->resizeSection(column, width);
    };
    fit(FileListModel::Modified,
        dateText(QDateTime(QDate(2028, 12, 28), QTime(22, 58))) + QLatin1Char(' '));
    fit(FileListModel::Size, QStringLiteral("1000.0 MB"));
}

}  // namespace ladrix
