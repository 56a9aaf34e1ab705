// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/collections/frm_collection_pane.h"

#include "engine/collections/scan_collections.h"
#include "engine/core/host_files.h"
#include "engine/core/shell.h"
#include "windows/widgets/dialog_tools.h"

#include <QDir>
#include <QFormLayout>
#include <QGridLayout>
#include <QHash>
#include <QLabel>
#include <QSplitter>

#include <utility>

namespace nubivane {

CollectionPane::CollectionPane(Workspace& workspace, AnimationCache& animations, Shell& shell,
                               Boxes boxes, QWidget* parent)
    : QWidget(parent),
      workspace_(workspace),
      shell_(shell),
      boxes_(boxes),
      lvwCollection_(new NameList(this)),
      listImageSymbols_(new ListImage(animations, this)),
      txtCollection_(readOnlyField("txtCollection", this)),
      txtFile_(readOnlyField("txtFile", this)),
      gifSymbol_(new GifAnimator(this)) {
    lvwCollection_->setObjectName("lvwCollection");
    lvwCollection_->setAccessibleName(tr("Symbol collections"));
    listImageSymbols_->setObjectName("listImageSymbols");
    listImageSymbols_->setDragEnabled(false);
    listImageSymbols_->setFrameShape(QFrame::StyledPanel);
    gifSymbol_->setObjectName("gifSymbol");
    gifSymbol_->setAccessibleName(tr("The selected symbol"));
    buildLayout();
    connect(lvwCollection_, &QListWidget::currentItemChanged, this, [this] {
        showCollection();
        Q_EMIT collectionSelected();
    });
    connect(listImageSymbols_, &ListImage::fileSelected, this, &CollectionPane::showFile);
    connect(&listImageSymbols_->symbols(), &SymbolListModel::dataChanged, this,
            [this](const QModelIndex& arrived) {
                if (arrived.row() == listImageSymbols_->currentIndex().row()) {
                    showPreview();
                }
            });
}

void CollectionPane::buildLayout() {
    const int letter = fontMetrics().averageCharWidth();
    auto* lists = new QSplitter(this);
    lists->addWidget(lvwCollection_);
    lists->addWidget(listImageSymbols_);
    lists->setStretchFactor(1, 1);
    lists->setChildrenCollapsible(false);
    lists->setSizes({28 * letter, 72 * letter});
    lvwCollection_->setMinimumWidth(16 * letter);
    listImageSymbols_->setMinimumSize(50 * letter, 20 * fontMetrics().height());

    auto* fieldBox = new QWidget(this);  // as high as its fields, so that it stays in the middle
    fieldBox->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    auto* fields = new QFormLayout(fieldBox);
    fields->setContentsMargins({});
    fields->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    fields->addRow(tr("&Collection:"), txtCollection_);
    fields->addRow(tr("&File:"), txtFile_);
    gifSymbol_->setFixedSize(100, 100);

    auto* grid = new QGridLayout(this);
    grid->setContentsMargins({});
    grid->addWidget(lists, 0, 0, 1, 2);
    grid->addWidget(fieldBox, 1, 0);
    grid->addWidget(gifSymbol_, 1, 1);
    grid->setRowStretch(0, 1);
    grid->setColumnStretch(0, 1);
}

void CollectionPane::fillCollectionList(const QString& selectName) {
    cSymbolsCollections& collections = workspace_.Status.SymbolsCollection();
    QHash<QString, Qt::CheckState> boxes;
    for (int i = 0; boxes_ == Boxes::Shown && i < lvwCollection_->count(); ++i) {
        const QListWidgetItem* row = lvwCollection_->item(i);
        boxes.insert(NameList::keyOf(row), row->checkState());
    }
    scanCollections(collections, workspace_.folder);
    // New ones come in at the end; people look for them by name.
    const bool isChanged = collections.IsChanged;
    collections = sortCollections(collections);
    collections.IsChanged = isChanged;
    {
        const QSignalBlocker quiet(lvwCollection_);
        lvwCollection_->clear();
        for (const cSymbolsCollection& collection : collections) {
            QListWidgetItem* row =
                lvwCollection_->addRow(collection.Name, collection.Key, collection.Path);
            if (boxes_ == Boxes::Shown) {
                row->setCheckState(
                    boxes.value(collection.Key, collection.Checked ? Qt::Checked : Qt::Unchecked));
            } else {
                row->setFlags(row->flags() & ~Qt::ItemIsEditable);
            }
        }
        QListWidgetItem* selected = lvwCollection_->rowOf(selectName);
        lvwCollection_->setCurrentItem(selected ? selected : lvwCollection_->item(0));
    }
    showCollection();
    Q_EMIT collectionSelected();
}

void CollectionPane::replaceRow(const QString& key, const cSymbolsCollection& collection) {
    if (QListWidgetItem* row = lvwCollection_->rowOf(key)) {
        NameList::setRow(*row, collection.Name, collection.Key, collection.Path);
        showCollection();
    }
}

void CollectionPane::showCollection(const QString& file) {
    const HourglassGuard hourglass(shell_);
    const QListWidgetItem* row = lvwCollection_->currentItem();
    txtCollection_->setText(row ? row->text() : QString());
    listImageSymbols_->load(NameList::tagOf(row));
    if (listImageSymbols_->symbols().rowCount() > 0) {
        listImageSymbols_->setCurrentIndex(listImageSymbols_->symbols().index(0));
    }
    listImageSymbols_->selectFile(file);
    showFile();
}

void CollectionPane::showFile() {
    selectedFile_ = listImageSymbols_->selectedFile();
    txtFile_->setText(selectedFile_.isEmpty()
                          ? QString()
                          : QDir::toNativeSeparators(host_files::toHost(selectedFile_)));
    showPreview();
}

void CollectionPane::showPreview() {
    const QModelIndex selected = listImageSymbols_->currentIndex();
    gifSymbol_->setAnimation(
        selected.isValid() ? listImageSymbols_->symbols().animation(selected.row()) : nullptr);
}

void CollectionPane::syncChecks() {
    cSymbolsCollections& collections = workspace_.Status.SymbolsCollection();
    for (int i = 0; i < lvwCollection_->count(); ++i) {
        const QListWidgetItem* row = lvwCollection_->item(i);
        if (!collections.contains(NameList::keyOf(row))) {
            continue;  // its folder has gone meanwhile
        }
        const bool checked = row->checkState() == Qt::Checked;
        cSymbolsCollection& collection = collections.Item(NameList::keyOf(row));
        if (collection.Checked != checked) {
            collections.IsChanged = true;
            collection.Checked = checked;
        }
    }
}

}  // namespace nubivane
