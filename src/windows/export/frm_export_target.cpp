// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/export/frm_export_target.h"

#include "engine/core/host_files.h"
#include "engine/core/path_text.h"
#include "engine/core/shell.h"
#include "engine/export/capture_plan.h"
#include "engine/model/workspace.h"
#include "windows/widgets/combo_ex.h"
#include "windows/widgets/explorer.h"
#include "windows/widgets/file_list.h"
#include "windows/widgets/help_topic.h"
#include "windows/widgets/one_line.h"
#include "windows/widgets/select_on_focus.h"

#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSplitter>

namespace nubivane {

using namespace Qt::StringLiterals;

ExportTargetDialog::ExportTargetDialog(const ExportTarget& target, Workspace& workspace,
                                       Shell& shell, QWidget* parent)
    : QDialog(parent),
      target_(target),
      workspace_(workspace),
      shell_(shell),
      Explorer1_(new Explorer(this)),
      File1_(new FileList(u'*' + target.extension, this)) {
    setObjectName(target.name);
    setWindowTitle(target.caption);
    Explorer1_->setObjectName("Explorer1");
    Explorer1_->setAccessibleName(tr("Folders"));
    File1_->setObjectName("File1");
    File1_->setAccessibleName(tr("Files in the folder"));
    auto* lists = new QSplitter(this);
    lists->addWidget(Explorer1_);
    lists->addWidget(File1_);
    lists->setChildrenCollapsible(false);
    const int letter = fontMetrics().averageCharWidth();
    lists->setSizes({50 * letter, 40 * letter});
    lists->setMinimumHeight(12 * fontMetrics().lineSpacing());

    auto* column = new QVBoxLayout(this);
    column->addWidget(lists, 1);
    column->addLayout(makeFields());
    column->addLayout(makeButtons());
    resize(90 * letter, sizeHint().height() + 8 * fontMetrics().lineSpacing());

    connect(Explorer1_, &Explorer::folderChanged, File1_, &FileList::showFolder);
    connect(File1_, &FileList::fileChosen, txtFileName_, &QLineEdit::setText);
    File1_->showFolder(Explorer1_->folder());
    Explorer1_->setFolder(target.folder);
    txtFileName_->setFocus();
}

QLayout* ExportTargetDialog::makeFields() {
    constexpr int LongestName = 255;
    txtFileName_ = new QLineEdit(target_.fileName);
    txtFileName_->setObjectName("txtFileName");
    txtFileName_->setMaxLength(LongestName);
    new SelectOnFocus(txtFileName_);
    keepOneLine(*txtFileName_);
    cboExt_ = new comboEx;
    cboExt_->setObjectName("cboExt");
    cboExt_->addItem(target_.type);
    fields_ = new QFormLayout;
    fields_->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    fields_->addRow(tr("File &name:"), txtFileName_);
    fields_->addRow(tr("Files of &type:"), cboExt_);
    lastField_ = cboExt_;
    return fields_;
}

QLayout* ExportTargetDialog::makeButtons() {
    auto* row = new QHBoxLayout;
    row->addStretch();
    const auto add = [&](const char* name, const QString& caption, auto click) {
        auto* button = new QPushButton(caption);
        button->setObjectName(name);
        connect(button, &QPushButton::clicked, this, click);
        row->addWidget(button);
        return button;
    };
    add("cmdSave", tr("&Save"), [this] { cmdSave_Click(); })->setDefault(true);
    add("cmdCancel", tr("Cancel"), [this] { reject(); });
    add("cmdHelp", tr("&Help"), [this] { openHelpTopic(workspace_, shell_, target_.helpTopic); });
    return row;
}

void ExportTargetDialog::addOption(const QString& caption, QWidget* field) {
    fields_->addRow(caption, field);
    setTabOrder(lastField_, field);
    lastField_ = field;
}

void ExportTargetDialog::addOption(const QString& caption, QWidget* field, QLayout* row) {
    fields_->addRow(caption, row);
    qobject_cast<QLabel*>(fields_->labelForField(row))->setBuddy(field);
    setTabOrder(lastField_, field);
    lastField_ = field;
}

void ExportTargetDialog::cmdSave_Click() {
    if (!optionsAreValid()) {
        return;
    }
    QString name = trimBlanks(txtFileName_->text());
    if (name.isEmpty()) {
        return;
    }
    if (name.right(target_.extension.size()).toLower() != target_.extension) {
        name += target_.extension;
    }
    if (!host_files::isPlainName(name)) {
        shell_.messageBox({tr("A file cannot have the name \"%1\".").arg(name),
                           Icon::Exclamation,
                           Buttons::Ok,
                           {}});
        return;
    }
    QString path = Explorer1_->folder();
    if (!path.endsWith(u'\\')) {
        path += u'\\';
    }
    path += name;
    if (host_files::fileExists(path) &&
        shell_.messageBox({tr("%1 already exist.\rDo you want to replace it ?").arg(name),
                           Icon::Question,
                           Buttons::YesNo,
                           {}}) != Answer::Yes) {
        return;
    }
    FileName_ = path;
    accept();
}

QComboBox* makeCompression() {
    auto* cboCompression = new comboEx;
    cboCompression->setObjectName("cboCompression");
    cboCompression->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    for (int step = 1; step <= MaxCompression; ++step) {
        cboCompression->addItem(QStringLiteral("1:%1").arg(step), step);
    }
    return cboCompression;
}

}  // namespace nubivane
