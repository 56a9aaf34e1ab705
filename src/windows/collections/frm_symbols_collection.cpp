// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/collections/frm_symbols_collection.h"

#include "engine/collections/entry_names.h"
#include "engine/collections/picture_check.h"
#include "engine/collections/scan_collections.h"
#include "engine/collections/symbol_files.h"
#include "engine/core/host_files.h"
#include "engine/core/path_text.h"
#include "engine/core/shell.h"
#include "windows/collections/frm_copy.h"
#include "windows/widgets/help_topic.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace nubivane {

using namespace Qt::StringLiterals;

frmSymbolsCollection::frmSymbolsCollection(Workspace& workspace, AnimationCache& animations,
                                           Shell& shell, QWidget* parent)
    : QDialog(parent),
      workspace_(workspace),
      shell_(shell),
      tlbSymbols_(new DialogTools("tlbSymbols", tr("Collections and symbols"), this)),
      pane_(new CollectionPane(workspace, animations, shell, CollectionPane::Boxes::Shown, this)),
      lblNotice_(new QLabel(this)) {
    setObjectName("frmSymbolsCollection");
    setWindowTitle(tr("Symbol collections"));
    lblNotice_->setObjectName("lblNotice");
    lblNotice_->setTextFormat(Qt::PlainText);
    lblNotice_->setWordWrap(true);
    lblNotice_->hide();
    buildTools();
    auto* buttons = new QDialogButtonBox(this);
    auto* cmdOK = buttons->addButton(QDialogButtonBox::Ok);
    auto* cmdClose = buttons->addButton(QDialogButtonBox::Close);
    cmdOK->setObjectName("cmdOK");
    cmdOK->setDefault(true);
    cmdClose->setObjectName("cmdClose");
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* column = new QVBoxLayout(this);
    column->addWidget(tlbSymbols_);
    column->addWidget(pane_, 1);
    column->addWidget(lblNotice_);
    column->addWidget(buttons);

    connect(pane_->lvwCollection(), &NameList::nameTyped, this,
            &frmSymbolsCollection::renameCollectionTo);
    connect(pane_, &CollectionPane::collectionSelected, this, &frmSymbolsCollection::refreshTools);
    pane_->fillCollectionList();
    pane_->lvwCollection()->setFocus();
    resize(sizeHint().expandedTo({100 * fontMetrics().averageCharWidth(), 0}));
}

void frmSymbolsCollection::buildTools() {
    const auto tool = [this](const char* name, const char* icon, const QString& text,
                             const QString& hint, const QKeySequence& keys, auto handler) {
        return tlbSymbols_->add({name, icon, text, hint, keys}, [this, handler] {
            pane_->lvwCollection()->finishRenaming();
            lblNotice_->hide();
            (this->*handler)();
        });
    };
    using Self = frmSymbolsCollection;
    tool("btnNewCollection", "collection-new", tr("New"), tr("New collection"),
         QKeySequence(u"Ctrl+N"_s), &Self::newCollection);
    needCollection_ << tool("btnDeleteCollection", "collection-delete", tr("Delete"),
                            tr("Delete the collection"), {}, &Self::deleteCollectionAsked);
    QAction* rename = tlbSymbols_->add(
        {"btnRenameCollection", "collection-rename", tr("Rename"), tr("Rename the collection"), {}},
        [this] { pane_->lvwCollection()->startRenaming(); });
    tlbSymbols_->addSeparator();
    needCollection_ << rename
                    << tool("btnImportSymbol", "symbol-import", tr("Import symbol"),
                            tr("Import a symbol into the collection"), QKeySequence(u"Ctrl+I"_s),
                            &Self::importSymbol);
    tool("btnDeleteSymbol", "symbol-delete", tr("Delete symbol"), tr("Delete the selected symbol"),
         {}, &Self::deleteSymbolAsked);
    tlbSymbols_->addSeparator();
    tlbSymbols_->add({"cmdHelp", "help", tr("Help"), tr("Help"), QKeySequence(Qt::Key_F1)},
                     [this] { openHelpTopic(workspace_, shell_, u"SymbolCollections.htm"_s); });
}

void frmSymbolsCollection::refreshTools() {
    for (QAction* tool : needCollection_) {
        tool->setEnabled(pane_->lvwCollection()->currentItem() != nullptr);
    }
}

void frmSymbolsCollection::refuse(const QString& text) {
    shell_.messageBox({text, Icon::Critical, Buttons::Ok, {}});
}

void frmSymbolsCollection::newCollection() {
    const QString name = createCollection(workspace_);
    if (!name.isEmpty()) {
        pane_->fillCollectionList(name);
    }
}

void frmSymbolsCollection::renameCollectionTo(const QString& key, const QString& name) {
    const QString refusal = renameCollection(workspace_, key, name);
    if (!refusal.isEmpty()) {
        refuse(refusal);
        return;
    }
    const cSymbolsCollections& collections = workspace_.Status.SymbolsCollection();
    // A name that differs in case alone can be another collection's, which has a row of its own.
    if (!collections.contains(key) && collections.contains(name)) {
        pane_->replaceRow(key, collections.Item(name));
    }
    if (pane_->lvwCollection()->count() != collections.Count()) {
        pane_->fillCollectionList(name);  // folders came or went meanwhile
    }
}

void frmSymbolsCollection::deleteCollectionAsked() {
    if (shell_.messageBox({tr("Are you sure you want to delete the collection ?"),
                           Icon::Question,
                           Buttons::YesNo,
                           {},
                           true}) != Answer::Yes) {
        return;
    }
    const HourglassGuard hourglass(shell_);
    const QString name = pane_->selectedKey();
    const QString folder = pane_->selectedFolder();
    const QString refusal = deleteCollection(workspace_, name);
    if (!refusal.isEmpty()) {
        refuse(refusal);
        return;
    }
    pane_->fillCollectionList();
    if (host_files::folderExists(folder)) {
        lblNotice_->setText(
            tr("The folder of the collection %1 could not be deleted: it holds other folders, or "
               "you may not change it.")
                .arg(name));
        lblNotice_->show();
    }
}

void frmSymbolsCollection::importSymbol() {
    const QString source = trimBlanks(
        shell_.openFileName({tr("Select file"), workspace_.folder.symbols(), ImportFilter}));
    if (source.isEmpty()) {
        return;
    }
    const HourglassGuard hourglass(shell_);
    const QString refusal = checkSymbolFile(source);
    if (!refusal.isEmpty()) {
        refuse(refusal);
        return;
    }
    const QString folder = pane_->selectedFolder();
    const QString target =
        folder + u'\\' + freeFileName(folder, validFileName(getFileName(source)));
    frmCopy(workspace_, shell_, this).Init(source, target);
    workspace_.Status.SymbolsCollection().IsChanged = true;
    pane_->fillCollectionList(pane_->selectedKey());
    pane_->listImageSymbols()->selectFile(target);
}

void frmSymbolsCollection::deleteSymbolAsked() {
    const QString file = pane_->selectedFile();
    if (trimBlanks(file).isEmpty()) {
        shell_.messageBox({tr("No symbol selected"), Icon::Exclamation, Buttons::Ok, {}});
        return;
    }
    if (shell_.messageBox({tr("Are you sure you want to delete the selected symbol ?"),
                           Icon::Question,
                           Buttons::YesNo,
                           {},
                           true}) != Answer::Yes) {
        return;
    }
    const HourglassGuard hourglass(shell_);
    const QString refusal = deleteSymbol(workspace_, file);
    if (!refusal.isEmpty()) {
        refuse(refusal);
        return;
    }
    pane_->showCollection();
}

void frmSymbolsCollection::accept() {
    pane_->lvwCollection()->finishRenaming();
    pane_->syncChecks();
    saveCheckedCollections(workspace_.Status.SymbolsCollection(), workspace_.settings);
    QDialog::accept();
}

void frmSymbolsCollection::done(int result) {
    pane_->lvwCollection()->finishRenaming();
    QDialog::done(result);
}

}  // namespace nubivane
