#include "qt/RemovedDialog.h"

#include <QAbstractTableModel>
#include <QHeaderView>
#include <QLabel>
#include <QPainter>
#include <QPixmap>
#include <QPushButton>
#include <QScreen>
#include <QTreeView>
#include <QVBoxLayout>
#include <map>

#include "qt/QtText.h"
#include "qt/SymbolButtons.h"
#include "qt/Theme.h"

namespace ladrix {

namespace {

constexpr int Space = 2 * theme::Unit;
constexpr int Margin = 3 * theme::Unit;
constexpr int Side = 25;  // of a picture, pixels
constexpr QSize FirstSize{640, 520}, WindowFrame{16, 48};

enum Column { NameColumn, LibraryColumn, TimeColumn, ColumnCount };

}  // namespace

// The rows of the form's list. Pictures are read when they are first seen.
class RemovedItems final : public QAbstractTableModel {
  public:
    RemovedItems(Program& program, double pixelRatio, QObject* parent)
        : QAbstractTableModel(parent), program_(program), pixelRatio_(pixelRatio) {}

    int rowCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? 0 : static_cast<int>(program_.frmRemoved.Items.size());
    }
    int columnCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? 0 : ColumnCount;
    }

    QVariant headerData(int section, Qt::Orientation, int role) const override {
        if (role != Qt::DisplayRole) return {};
        const QString captions[] = {tr("Symbol"), tr("Library"), tr("Removed")};
        return captions[section];
    }

    QVariant data(const QModelIndex& index, int role) const override {
        const RemovedItem& item = program_.frmRemoved.Items[static_cast<std::size_t>(index.row())];
        if (role == Qt::DecorationRole && index.column() == NameColumn) return picture(index.row());
        if (role != Qt::DisplayRole && role != Qt::ToolTipRole) return {};
        const QString text = textOf(item, index.column());
        return role == Qt::ToolTipRole ? plainTip(text) : text;
    }

    void renew() {
        beginResetModel();
        pictures_.clear();
        endResetModel();
    }

  private:
    static QString textOf(const RemovedItem& item, int column) {
        if (column == TimeColumn) return toQString(item.When);
        if (column == LibraryColumn) return toQString(item.Library);
        if (!item.IsLibrary) return toQString(item.Name);
        return item.SymbolCount == 1 ? tr("The whole library, 1 symbol")
                                     : tr("The whole library, %1 symbols").arg(item.SymbolCount);
    }

    const QPixmap& picture(int row) const {
        const auto [known, isNew] = pictures_.try_emplace(row);
        if (!isNew) return known->second;
        QPixmap& pixels = known->second;
        pixels = QPixmap(QSize(Side, Side) * pixelRatio_);
        pixels.setDevicePixelRatio(pixelRatio_);
        pixels.fill(Qt::transparent);
        const RemovedItem& item = program_.frmRemoved.Items[static_cast<std::size_t>(row)];
        if (const auto image = pictureOfRemoved(item, program_.platform)) {
            QPainter painter(&pixels);
            paintSymbolPicture(painter, *image, QRect(0, 0, Side, Side));
        }
        return pixels;
    }

    Program& program_;
    double pixelRatio_;
    mutable std::map<int, QPixmap> pictures_;  // by row
};

RemovedDialog::RemovedDialog(Program& program, QWidget* parent)
    : QDialog(parent),
      program_(program),
      items_(new RemovedItems(program, devicePixelRatioF(), this)),
      lstRemoved_(new QTreeView(this)),
      lblTarget_(new QLabel(this)),
      lblMessage_(new QLabel(this)),
      cmdBringBack_(new QPushButton(this)),
      cmdExit_(new QPushButton(this)) {
    setObjectName(QStringLiteral("frmRemoved"));
    setWindowTitle(tr("Bring Back a Removed Symbol"));
    setSizeGripEnabled(true);
    makeList();
    lblTarget_->setObjectName(QStringLiteral("lblTarget"));
    lblTarget_->setForegroundRole(QPalette::PlaceholderText);
    lblTarget_->setWordWrap(true);
    lblMessage_->setObjectName(QStringLiteral("lblMessage"));
    lblMessage_->setWordWrap(true);
    cmdBringBack_->setObjectName(QStringLiteral("cmdBringBack"));
    cmdBringBack_->setDefault(true);
    cmdExit_->setObjectName(QStringLiteral("cmdExit"));
    cmdExit_->setAutoDefault(false);
    connect(cmdBringBack_, &QPushButton::clicked, this, &RemovedDialog::bringBack);
    connect(cmdExit_, &QPushButton::clicked, this, &RemovedDialog::reject);
    auto* const foot = new QHBoxLayout;
    foot->setSpacing(Space);
    foot->addWidget(lblMessage_, 1);
    foot->addWidget(cmdBringBack_);
    foot->addWidget(cmdExit_);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(Margin, Margin, Margin, Margin);
    layout->setSpacing(Space);
    layout->addWidget(lstRemoved_, 1);
    layout->addWidget(lblTarget_);
    layout->addLayout(foot);
    resize(FirstSize.boundedTo(screen()->availableSize() - WindowFrame));
}

void RemovedDialog::makeList() {
    lstRemoved_->setObjectName(QStringLiteral("lstRemoved"));
    lstRemoved_->setAccessibleName(tr("Removed symbols and libraries, the newest first"));
    lstRemoved_->setModel(items_);
    lstRemoved_->setRootIsDecorated(false);
    lstRemoved_->setItemsExpandable(false);
    lstRemoved_->setUniformRowHeights(true);
    lstRemoved_->setAllColumnsShowFocus(true);
    lstRemoved_->setIconSize(QSize(Side, Side));
    lstRemoved_->setTextElideMode(Qt::ElideMiddle);
    QHeaderView& header = *lstRemoved_->header();
    header.setStretchLastSection(false);
    header.setSectionResizeMode(NameColumn, QHeaderView::Stretch);
    header.setSectionResizeMode(LibraryColumn, QHeaderView::Interactive);
    header.setSectionResizeMode(TimeColumn, QHeaderView::Fixed);
    header.resizeSection(LibraryColumn, 12 * fontMetrics().height());
    header.resizeSection(
        TimeColumn,
        fontMetrics().horizontalAdvance(QStringLiteral("0000-00-00 00:00:00")) + 2 * Margin);
    connect(lstRemoved_->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this](const QModelIndex& row) {
                if (!showing_) lstRemoved_Click(program_.frmRemoved, row.row());
            });
    connect(lstRemoved_, &QTreeView::doubleClicked, this, &RemovedDialog::bringBack);
}

void RemovedDialog::bringBack() {
    frmRemoved_cmdBringBack_Click(program_.frmRemoved, program_.usersymbols, program_.editor);
    items_->renew();
    showState();
}

void RemovedDialog::showState() {
    const RemovedForm& form = program_.frmRemoved;
    showing_ = true;
    lstRemoved_->setCurrentIndex(items_->index(form.ListIndex, 0));
    showing_ = false;
    lblTarget_->setText(toQString(form.lblTarget.Caption));
    lblMessage_->setText(toQString(form.lblMessage.Caption));
    cmdBringBack_->setText(toQString(form.cmdBringBack.Caption));
    cmdBringBack_->setEnabled(form.cmdBringBack.Enabled);
    cmdExit_->setText(toQString(form.cmdExit.Caption));
}

void RemovedDialog::run() {
    showState();
    if (program_.frmRemoved.Items.empty())
        cmdExit_->setFocus();
    else
        lstRemoved_->setFocus();
    exec();
}

void RemovedDialog::reject() {
    frmRemoved_cmdExit_Click(program_.frmRemoved);
    done(0);
}

}  // namespace ladrix
