#include "qt/SymbolDialogs.h"

#include <QComboBox>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/UserPaletteCommands.h"
#include "qt/ColorPanel.h"
#include "qt/InputFilters.h"
#include "qt/QtImages.h"
#include "qt/QtText.h"
#include "qt/Theme.h"
#include "usersymbols/SavingForms.h"

namespace ladrix {

namespace {

constexpr int Space = 2 * theme::Unit;
constexpr int Margin = 4 * theme::Unit;
constexpr int ColorColumns = 8, ColorPitch = 36;
constexpr int LongestName = 200;  // characters: with an ending it must still be a file's name

QVBoxLayout* makeColumn(QDialog* dialog) {
    auto* const column = new QVBoxLayout(dialog);
    column->setContentsMargins(Margin, Margin, Margin, Margin);
    column->setSpacing(3 * theme::Unit);
    column->setSizeConstraint(QLayout::SetFixedSize);
    return column;
}

QPushButton* makeButton(QDialog* dialog, const char* name, const Control& state) {
    auto* const button = new QPushButton(toQString(state.Caption), dialog);
    button->setObjectName(QString::fromLatin1(name));
    button->setAutoDefault(false);
    return button;
}

QHBoxLayout* makeButtonRow(std::initializer_list<QPushButton*> buttons) {
    auto* const row = new QHBoxLayout;
    row->setSpacing(Space);
    row->addStretch(1);
    for (QPushButton* const button : buttons)
        row->addWidget(button);
    return row;
}

// What stands in brackets begins a line of its own, and so is not broken in its middle.
QString bracketsApart(const std::string& caption) {
    return toQString(caption).replace(QLatin1String(" ("), QLatin1String("\n("));
}

void showColor(QWidget& widget, Long color) {
    QPalette palette = widget.palette();
    palette.setColor(QPalette::Button, theme::color(color));
    widget.setPalette(palette);
}

}  // namespace

ButtonColorDialog::ButtonColorDialog(Program& program, QWidget* parent)
    : QDialog(parent), program_(program), cmdBackColor_(new ColorSwatch(this)) {
    setObjectName(QStringLiteral("frmButtonColor"));
    setWindowTitle(tr("User Button Background Color"));
    frmButtonColor_Load(program.usersymbols);
    const FormButtonColor& form = program.usersymbols.frmButtonColor;
    cmdBackColor_->setObjectName(QStringLiteral("cmdBackColor"));
    cmdBackColor_->setFixedSize(ColorPitch, ColorPitch);
    cmdBackColor_->setFocusPolicy(Qt::NoFocus);
    auto* const lblBackColor = new QLabel(toQString(form.lblBackColor.Caption), this);
    auto* const lblMessage = new QLabel(bracketsApart(form.lblMessage.Caption), this);
    lblMessage->setObjectName(QStringLiteral("lblMessage"));
    lblMessage->setForegroundRole(QPalette::PlaceholderText);
    lblMessage->setWordWrap(true);
    auto* const choice = new QHBoxLayout;
    choice->setSpacing(Space);
    choice->addWidget(lblBackColor);
    choice->addWidget(cmdBackColor_);
    choice->addStretch(1);
    QPushButton* const cmdOK = makeButton(this, "cmdOK", form.cmdOK);
    cmdOK->setDefault(true);
    connect(cmdOK, &QPushButton::clicked, this, [this] {
        frmButtonColor_cmdOK_Click(program_.usersymbols, program_.editor);
        done(0);
    });
    QVBoxLayout* const column = makeColumn(this);
    column->addWidget(makeColors(), 0, Qt::AlignHCenter);
    column->addLayout(choice);
    column->addWidget(lblMessage);
    column->addLayout(makeButtonRow({cmdOK}));
}

QWidget* ButtonColorDialog::makeColors() {
    auto* const field = new QWidget(this);
    field->setToolTip(tr("Colour for the background of the button"));
    auto* const grid = new QGridLayout(field);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(0);
    const auto& colors = program_.usersymbols.frmButtonColor.cmdColor;
    for (std::size_t i = 0; i < colors.size(); ++i) {
        const int place = static_cast<int>(i);
        auto* const swatch = new ColorSwatch(field);
        swatch->setObjectName(QStringLiteral("cmdColor%1").arg(place));
        swatch->setFixedSize(ColorPitch, ColorPitch);
        swatch->setAccessibleName(tr("Color %1").arg(theme::color(colors[i].BackColor).name()));
        showColor(*swatch, colors[i].BackColor);
        connect(swatch, &ColorSwatch::clicked, this, [this, i] {
            cmdColor_Click(program_.usersymbols, i);
            showState();
        });
        grid->addWidget(swatch, place / ColorColumns, place % ColorColumns);
    }
    return field;
}

void ButtonColorDialog::showState() {
    showColor(*cmdBackColor_, program_.usersymbols.frmButtonColor.cmdBackColor.BackColor);
}

void ButtonColorDialog::run() {
    showState();
    exec();
}

void ButtonColorDialog::reject() {
    frmButtonColor_QueryUnload(program_.usersymbols, program_.editor);
    done(0);
}

SaveSymbolDialog::SaveSymbolDialog(Program& program, QWidget* parent)
    : QDialog(parent), program_(program), txtSymbolName_(new QLineEdit(this)) {
    setObjectName(QStringLiteral("frmUS"));
    setWindowTitle(tr("Symbol Manager"));
    frmUS_Load(program.usersymbols);
    const FormUS& form = program.usersymbols.frmUS;
    auto* const lblSymbolName = new QLabel(toQString(form.lblSymbolName.Caption), this);
    lblSymbolName->setBuddy(txtSymbolName_);
    txtSymbolName_->setObjectName(QStringLiteral("txtSymbolName"));
    txtSymbolName_->setValidator(new RecordTextFilter(txtSymbolName_));
    txtSymbolName_->setMaxLength(LongestName);
    txtSymbolName_->setMinimumWidth(260);
    QPushButton* const cmdSave = makeButton(this, "cmdSave", form.cmdSave);
    cmdSave->setDefault(true);
    QPushButton* const cmdExit = makeButton(this, "cmdExit", form.cmdExit);
    connect(cmdSave, &QPushButton::clicked, this, &SaveSymbolDialog::save);
    connect(cmdExit, &QPushButton::clicked, this, &SaveSymbolDialog::reject);
    QVBoxLayout* const column = makeColumn(this);
    column->addWidget(makePictures());
    column->addWidget(lblSymbolName);
    column->addWidget(txtSymbolName_);
    column->addLayout(makeButtonRow({cmdSave, cmdExit}));
}

// As the button will stand in the palette, and as it will look while it is pressed.
QWidget* SaveSymbolDialog::makePictures() {
    const FormUS& form = program_.usersymbols.frmUS;
    auto* const field = new QWidget(this);
    auto* const row = new QHBoxLayout(field);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(Space);
    row->addWidget(new QLabel(toQString(form.lblUserSymbol.Caption), field));
    row->addStretch(1);
    row->addWidget(makePicture("picIconShow", form.picIconShow));
    row->addWidget(makePicture("picCyanIcon", form.picCyanIcon));
    return field;
}

QLabel* SaveSymbolDialog::makePicture(const char* name,
                                      const std::unique_ptr<PictureBox>& picture) {
    auto* const label = new QLabel(this);
    label->setObjectName(QString::fromLatin1(name));
    label->setFrameShape(QFrame::Box);
    label->setLineWidth(1);
    if (picture == nullptr) return label;
    const auto image = picture->Image();
    if (const auto* shown = dynamic_cast<const QtPicture*>(image.get()))
        label->setPixmap(QPixmap::fromImage(shown->image()));
    return label;
}

void SaveSymbolDialog::run() {
    txtSymbolName_->setText(toQString(program_.usersymbols.frmUS.txtSymbolName.Text));
    txtSymbolName_->setFocus();
    exec();
}

void SaveSymbolDialog::save() {
    FormUS& form = program_.usersymbols.frmUS;
    const int marks = form.txtSymbolName.SelectAllRequests;
    form.txtSymbolName.Text = fromQString(txtSymbolName_->text());
    frmUS_cmdSave_Click(program_.usersymbols, program_.editor);
    if (!form.Visible) return done(0);
    txtSymbolName_->setFocus();
    if (form.txtSymbolName.SelectAllRequests != marks) txtSymbolName_->selectAll();
}

void SaveSymbolDialog::reject() {
    frmUS_cmdExit_Click(program_.usersymbols, program_.editor);
    done(0);
}

PaletteRowsDialog::PaletteRowsDialog(Program& program, QWidget* parent)
    : QDialog(parent), program_(program), cmbRows_(new QComboBox(this)) {
    setObjectName(QStringLiteral("frmUBRows"));
    setWindowTitle(tr("Number of Displayed Rows"));
    frmUBRows_Load(program);
    const FormUBRows& form = program.usersymbols.frmUBRows;
    cmbRows_->setObjectName(QStringLiteral("cmbRows"));
    cmbRows_->setEditable(true);
    cmbRows_->setInsertPolicy(QComboBox::NoInsert);
    cmbRows_->setMaxVisibleItems(16);
    for (const std::string& rows : form.cmbRows.List)
        cmbRows_->addItem(toQString(rows));
    cmbRows_->setCurrentText(toQString(form.cmbRows.Text));
    cmbRows_->setValidator(new NumberFilter(cmbRows_));
    auto* const label = new QLabel(tr("&Rows of user buttons in the palette"), this);
    label->setBuddy(cmbRows_);
    QPushButton* const cmdSave = makeButton(this, "cmdSave", form.cmdSave);
    auto* const cmdExit = new QPushButton(tr("Cancel"), this);
    cmdExit->setObjectName(QStringLiteral("cmdExit"));
    cmdExit->setAutoDefault(false);
    connect(cmdSave, &QPushButton::clicked, this, &PaletteRowsDialog::save);
    connect(cmdExit, &QPushButton::clicked, this, &PaletteRowsDialog::reject);
    // Enter leads from the number to the button, which is then pressed by the next one.
    connect(cmbRows_->lineEdit(), &QLineEdit::returnPressed, cmdSave, [cmdSave] {
        cmdSave->setFocus();
        cmdSave->setAutoDefault(true);
    });
    auto* const row = new QHBoxLayout;
    row->setSpacing(Space);
    row->addWidget(label);
    row->addWidget(cmbRows_);
    QVBoxLayout* const column = makeColumn(this);
    column->addLayout(row);
    column->addLayout(makeButtonRow({cmdSave, cmdExit}));
}

void PaletteRowsDialog::run() {
    cmbRows_->setFocus();
    cmbRows_->lineEdit()->selectAll();
    exec();
}

void PaletteRowsDialog::save() {
    program_.usersymbols.frmUBRows.cmbRows.Text = fromQString(cmbRows_->currentText());
    frmUBRows_cmdSave_Click(program_);
    if (!program_.usersymbols.frmUBRows.Visible) done(0);
}

void PaletteRowsDialog::reject() {
    program_.usersymbols.frmUBRows.Visible = false;
    done(0);
}

}  // namespace ladrix
