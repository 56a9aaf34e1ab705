// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/properties/frm_font.h"

#include "engine/export/label_painter.h"
#include "engine/gif/color_value.h"
#include "windows/properties/screen_fonts.h"
#include "windows/widgets/at_once.h"
#include "windows/widgets/color_swatch.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>

#include <array>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

constexpr int DataRole = Qt::UserRole;
constexpr QSize SampleSize(240, 76);  // room for the largest size of the list
constexpr int LightFrom = 160;        // of 255: colours that a white ground would swallow

struct Style {
    const char* name;
    bool bold;
    bool italic;
};

// In the order of their item data, 0 to 3.
constexpr std::array styles = {
    Style{QT_TRANSLATE_NOOP("nubivane::frmFont", "Normal"), false, false},
    Style{QT_TRANSLATE_NOOP("nubivane::frmFont", "Italic"), false, true},
    Style{QT_TRANSLATE_NOOP("nubivane::frmFont", "Bold"), true, false},
    Style{QT_TRANSLATE_NOOP("nubivane::frmFont", "Bold italic"), true, true},
};

constexpr std::array sizes = {8, 10, 12, 14, 18, 24, 36};

void addItem(QListWidget& list, const QString& text, int data) {
    auto* item = new QListWidgetItem(text, &list);
    item->setData(DataRole, data);
}

/// Selects the row whose data is `data`, or none.
void selectData(QListWidget& list, int data) {
    list.setCurrentItem(nullptr);
    for (int row = 0; row < list.count(); ++row) {
        if (list.item(row)->data(DataRole).toInt() == data) {
            list.setCurrentRow(row);
        }
    }
}

void selectText(QListWidget& list, const QString& text) {
    const auto found = list.findItems(text, Qt::MatchFixedString);
    list.setCurrentItem(found.isEmpty() ? nullptr : found.first());
}

/// The selected item, or nothing. A list makes its first item the current one when it gets the
/// keyboard, without selecting it.
const QListWidgetItem* selectedOf(const QListWidget& list) {
    const auto selected = list.selectedItems();
    return selected.isEmpty() ? nullptr : selected.first();
}

/// A field that shows what a list has selected; getting the keyboard selects its text.
class SelectedText : public QLineEdit {
  public:
    explicit SelectedText(const char* name) {
        setObjectName(name);
        setReadOnly(true);
    }

  protected:
    void focusInEvent(QFocusEvent* event) override {
        QLineEdit::focusInEvent(event);
        selectAll();
    }
    void mouseReleaseEvent(QMouseEvent*) override { selectAll(); }
};

QListWidget* newList(const char* name, QWidget* parent) {
    auto* list = new QListWidget(parent);
    list->setObjectName(name);
    list->setSizeAdjustPolicy(QAbstractScrollArea::AdjustIgnored);
    list->setMinimumHeight(7 * list->fontMetrics().lineSpacing() + 12);
    return list;
}

}  // namespace

frmFont::frmFont(QWidget* parent)
    : QDialog(parent),
      lstFont_(newList("lstFont", this)),
      lstFontStyle_(newList("lstFontStyle", this)),
      lstFontSize_(newList("lstFontSize", this)),
      txtSelectedFont_(new SelectedText("txtSelectedFont")),
      txtSelectedStyle_(new SelectedText("txtSelectedStyle")),
      txtSelectedSize_(new SelectedText("txtSelectedSize")) {
    setObjectName("frmFont");
    setWindowTitle(tr("Font"));
    auto* column = new QVBoxLayout(this);
    buildLists(*column);
    auto* row = new QHBoxLayout;
    column->addLayout(row);
    buildEffects(*row);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    buttons->button(QDialogButtonBox::Ok)->setObjectName("cmdOk");
    buttons->button(QDialogButtonBox::Ok)->setDefault(true);
    buttons->button(QDialogButtonBox::Cancel)->setObjectName("cmdCancel");
    column->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, [this] {
        apply();
        accept();
    });
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connectChanges();
    answerKeysAtOnce(*this);
}

void frmFont::buildLists(QBoxLayout& column) {
    struct Column {
        QString caption;
        QLineEdit* text;
        QListWidget* list;
        int stretch;
        int characters;
    };
    const std::array columns = {
        Column{tr("&Font:"), txtSelectedFont_, lstFont_, 5, 26},
        Column{tr("Font st&yle:"), txtSelectedStyle_, lstFontStyle_, 3, 15},
        Column{tr("&Size:"), txtSelectedSize_, lstFontSize_, 2, 9},
    };
    auto* lists = new QGridLayout;
    lists->setVerticalSpacing(2);
    int place = 0;
    for (const Column& each : columns) {
        auto* label = new QLabel(each.caption);
        label->setBuddy(each.list);
        const QString name = QString(each.caption).remove(u'&').remove(u':');
        each.text->setAccessibleName(name);
        each.list->setAccessibleName(name);
        each.list->setMinimumWidth(each.characters * fontMetrics().averageCharWidth());
        lists->addWidget(label, 0, place);
        lists->addWidget(each.text, 1, place);
        lists->addWidget(each.list, 2, place);
        lists->setColumnStretch(place, each.stretch);
        ++place;
    }
    column.addLayout(lists, 1);
    for (const QString& family : screenFonts()) {
        addItem(*lstFont_, family, lstFont_->count());
    }
    for (std::size_t i = 0; i < styles.size(); ++i) {
        addItem(*lstFontStyle_, tr(styles[i].name), static_cast<int>(i));
    }
    for (const int size : sizes) {
        addItem(*lstFontSize_, QString::number(size), size);
    }
}

void frmFont::buildEffects(QBoxLayout& row) {
    fraEffects_ = new QGroupBox(tr("Effects"));
    fraEffects_->setObjectName("fraEffects");
    auto* effects = new QFormLayout(fraEffects_);
    const auto addCheck = [effects](const QString& text, const char* name) {
        auto* check = new QCheckBox(text);
        check->setObjectName(name);
        effects->addRow(check);
        return check;
    };
    chkUnderline_ = addCheck(tr("&Underline"), "chkUnderline");
    chkOverline_ = addCheck(tr("O&verline"), "chkOverline");
    chkStrikeout_ = addCheck(tr("Stri&keout"), "chkStrikeout");
    cboColor_ = new comboColor;
    cboColor_->setObjectName("cboColor");
    effects->addRow(tr("&Color:"), cboColor_);

    auto* fraSample = new QGroupBox(tr("Sample"));
    fraSample->setObjectName("fraSample");
    auto* sample = new QVBoxLayout(fraSample);
    lblSample_ = new QLabel(u"AaBbYyZz"_s);
    lblSample_->setObjectName("lblSample");
    lblSample_->setAlignment(Qt::AlignCenter);
    lblSample_->setFrameShape(QFrame::StyledPanel);
    lblSample_->setAutoFillBackground(true);
    // Whatever its font, the sample leaves the size of the dialog alone.
    lblSample_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    lblSample_->setMinimumSize(SampleSize);
    sample->addWidget(lblSample_);
    row.addWidget(fraEffects_);
    row.addWidget(fraSample, 1);
}

void frmFont::connectChanges() {
    for (QListWidget* list : {lstFont_, lstFontStyle_, lstFontSize_}) {
        connect(list, &QListWidget::itemSelectionChanged, this, &frmFont::refresh);
    }
    for (QCheckBox* check : {chkUnderline_, chkOverline_, chkStrikeout_}) {
        connect(check, &QCheckBox::toggled, this, &frmFont::refresh);
    }
    connect(cboColor_, &comboColor::currentIndexChanged, this, &frmFont::refresh);
}

void frmFont::Init() {
    if (!oFont) {
        return;
    }
    fill(*oFont);
    lstFont_->setFocus();
    exec();
}

void frmFont::fill(const FontStyle& font) {
    opened_ = font;
    selectText(*lstFont_, font.Name);
    selectData(*lstFontSize_, font.Size);
    selectData(*lstFontStyle_, font.Bold ? (font.Italic ? 3 : 2) : font.Italic ? 1 : 0);
    chkUnderline_->setChecked(font.Underline);
    chkOverline_->setChecked(font.Overline);
    chkStrikeout_->setChecked(font.Strikeout);
    cboColor_->setColor(font.Color);
    refresh();
    lstFont_->scrollToItem(lstFont_->currentItem(), QAbstractItemView::PositionAtCenter);
}

/// What the controls say, and what the object has where nothing is selected.
FontStyle frmFont::chosen() const {
    FontStyle font = opened_;
    if (const QListWidgetItem* family = selectedOf(*lstFont_)) {
        font.Name = family->text();
    }
    if (const QListWidgetItem* size = selectedOf(*lstFontSize_)) {
        font.Size = size->data(DataRole).toInt();
    }
    if (const QListWidgetItem* style = selectedOf(*lstFontStyle_)) {
        const Style& each = styles[static_cast<std::size_t>(style->data(DataRole).toInt())];
        font.Bold = each.bold;
        font.Italic = each.italic;
    }
    if (cboColor_->currentIndex() >= 0) {
        font.Color = cboColor_->color();
    }
    font.Underline = chkUnderline_->isChecked();
    font.Overline = chkOverline_->isChecked();
    font.Strikeout = chkStrikeout_->isChecked();
    return font;
}

void frmFont::refresh() {
    const FontStyle font = chosen();
    txtSelectedFont_->setText(font.Name);
    txtSelectedSize_->setText(QString::number(font.Size));
    const QListWidgetItem* style = selectedOf(*lstFontStyle_);
    txtSelectedStyle_->setText(style ? style->text() : QString());

    QFont sample = mapFont(font);
    sample.setOverline(font.Overline);
    sample.setStrikeOut(font.Strikeout);
    lblSample_->setFont(sample);
    const QColor color = colorOf(font.Color);
    QPalette colors = lblSample_->palette();
    colors.setColor(QPalette::WindowText, color.isValid() ? color : QColor(Qt::black));
    colors.setColor(QPalette::Window,
                    qGray(color.rgb()) < LightFrom ? QColor(Qt::white) : QColor(72, 72, 72));
    lblSample_->setPalette(colors);
}

/// The box for overline is for looking only: what is stored follows the underline.
void frmFont::apply() {
    FontStyle font = chosen();
    font.Overline = font.Underline;
    *oFont = font;
}

}  // namespace nubivane
