// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/commands/frm_replace.h"

#include "engine/core/host_files.h"
#include "engine/core/path_text.h"
#include "windows/commands/replacements.h"
#include "windows/widgets/at_once.h"
#include "windows/widgets/combo_ex.h"
#include "windows/widgets/one_line.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QIcon>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

enum Page { TextPage, PicturePage, FontPage };

/// A symbol as people know it: its collection and its name.
QString shortName(const QString& path) {
    return getFileName(getFolder(path)) + u" / "_s + stripExtension(getFileName(path));
}

QIcon iconOf(const QString& path) {
    return QIcon(host_files::toHost(path));
}

QFormLayout* makeForm(QWidget* page) {
    auto* form = new QFormLayout(page);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    return form;
}

}  // namespace

frmReplace::frmReplace(Workspace& workspace, SymbolChooser chooser, QWidget* parent)
    : QDialog(parent),
      workspace_(workspace),
      chooser_(std::move(chooser)),
      pages_(new QTabWidget(this)),
      lblResult_(new QLabel(this)),
      cmdReplace_(new QPushButton(tr("&Replace all"), this)) {
    setObjectName("frmReplace");
    setWindowTitle(tr("Find and replace"));
    pages_->setObjectName("pages");
    pages_->addTab(makeTextPage(), tr("Text"));
    pages_->addTab(makePicturePage(), tr("Symbol"));
    pages_->addTab(makeFontPage(), tr("Font"));
    lblResult_->setObjectName("lblResult");
    lblResult_->setTextFormat(Qt::PlainText);
    cmdReplace_->setObjectName("cmdReplace");
    cmdReplace_->setDefault(true);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    buttons->addButton(cmdReplace_, QDialogButtonBox::ActionRole);
    auto* column = new QVBoxLayout(this);
    column->addWidget(pages_);
    column->addWidget(lblResult_);
    column->addWidget(buttons);
    connect(cmdReplace_, &QPushButton::clicked, this, &frmReplace::replace);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(pages_, &QTabWidget::currentChanged, this, &frmReplace::refresh);
    fill();
    refresh();
    answerKeysAtOnce(*this);
    resize(std::max(sizeHint().width(), 420), sizeHint().height());
}

QWidget* frmReplace::makeTextPage() {
    auto* page = new QWidget(pages_);
    auto* form = makeForm(page);
    txtFind_ = new QLineEdit(page);
    txtReplacement_ = new QLineEdit(page);
    chkLetters_ = new QCheckBox(tr("&Capital letters count"), page);
    txtFind_->setObjectName("txtFind");
    txtReplacement_->setObjectName("txtReplacement");
    chkLetters_->setObjectName("chkLetters");
    keepOneLine(*txtFind_);
    keepOneLine(*txtReplacement_);
    form->addRow(tr("&Find in labels"), txtFind_);
    form->addRow(tr("Replace &by"), txtReplacement_);
    form->addRow(chkLetters_);
    connect(txtFind_, &QLineEdit::textChanged, this, &frmReplace::refresh);
    return page;
}

QWidget* frmReplace::makePicturePage() {
    auto* page = new QWidget(pages_);
    auto* form = makeForm(page);
    cboPicture_ = new comboEx(page);
    cmdPicture_ = new QPushButton(page);
    cboPicture_->setObjectName("cboPicture");
    cmdPicture_->setObjectName("cmdPicture");
    cmdPicture_->setAutoDefault(false);
    form->addRow(tr("&Symbol"), cboPicture_);
    form->addRow(tr("Replace b&y"), cmdPicture_);
    connect(cmdPicture_, &QPushButton::clicked, this, &frmReplace::choosePicture);
    return page;
}

QWidget* frmReplace::makeFontPage() {
    auto* page = new QWidget(pages_);
    auto* form = makeForm(page);
    cboFont_ = new comboEx(page);
    cboNewFont_ = new QFontComboBox(page);
    cboFont_->setObjectName("cboFont");
    cboNewFont_->setObjectName("cboNewFont");
    form->addRow(tr("&Font of labels and texts"), cboFont_);
    form->addRow(tr("Replace b&y"), cboNewFont_);
    return page;
}

/// What there is to be replaced now; what was chosen stays so as long as it is there.
void frmReplace::fill() {
    const QString picture = cboPicture_->currentData().toString();
    cboPicture_->clear();
    for (const QString& path : picturesOf(workspace_)) {
        cboPicture_->addItem(iconOf(path), shortName(path), path);
    }
    cboPicture_->setCurrentIndex(std::max(0, cboPicture_->findData(picture)));
    const QString font = cboFont_->currentText();
    cboFont_->clear();
    cboFont_->addItems(fontsOf(workspace_));
    cboFont_->setCurrentIndex(std::max(0, cboFont_->findText(font)));
}

void frmReplace::choosePicture() {
    const auto chosen = chooser_(this);
    if (chosen && !chosen->isEmpty()) {
        picture_ = *chosen;
        refresh();
    }
}

void frmReplace::refresh() {
    cmdPicture_->setText(picture_.isEmpty() ? tr("Choose...") : shortName(picture_));
    cmdPicture_->setIcon(picture_.isEmpty() ? QIcon() : iconOf(picture_));
    lblResult_->clear();
    switch (pages_->currentIndex()) {
        case TextPage:
            cmdReplace_->setEnabled(!txtFind_->text().isEmpty());
            break;
        case PicturePage:
            cmdReplace_->setEnabled(cboPicture_->count() > 0 && !picture_.isEmpty());
            break;
        default:
            cmdReplace_->setEnabled(cboFont_->count() > 0);
    }
}

void frmReplace::replace() {
    int places = 0;
    switch (pages_->currentIndex()) {
        case TextPage:
            places = replaceLabelText(
                workspace_, txtFind_->text(), txtReplacement_->text(),
                chkLetters_->isChecked() ? Qt::CaseSensitive : Qt::CaseInsensitive);
            break;
        case PicturePage:
            places = replacePicture(workspace_, cboPicture_->currentData().toString(), picture_);
            break;
        default:
            places = replaceFont(workspace_, cboFont_->currentText(),
                                 cboNewFont_->currentFont().family());
    }
    fill();
    refresh();
    lblResult_->setText(places == 0   ? tr("Nothing was found to replace.")
                        : places == 1 ? tr("Replaced in one place.")
                                      : tr("Replaced in %1 places.").arg(places));
}

}  // namespace nubivane
