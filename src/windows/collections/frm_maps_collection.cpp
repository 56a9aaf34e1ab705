// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/collections/frm_maps_collection.h"

#include "engine/collections/entry_names.h"
#include "engine/collections/map_files.h"
#include "engine/collections/picture_check.h"
#include "engine/core/error.h"
#include "engine/core/host_files.h"
#include "engine/core/path_text.h"
#include "engine/core/shell.h"
#include "engine/core/trash.h"
#include "windows/collections/frm_copy.h"
#include "windows/widgets/help_topic.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QFormLayout>
#include <QPushButton>
#include <QSplitter>
#include <QVBoxLayout>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

void setBold(QListWidgetItem& row, bool bold) {
    QFont font = row.font();
    font.setBold(bold);
    row.setFont(font);
}

}  // namespace

frmMapsCollection::frmMapsCollection(Workspace& workspace, Shell& shell, QWidget* parent)
    : QDialog(parent),
      workspace_(workspace),
      shell_(shell),
      tlbMap_(new DialogTools("tlbMap", tr("Maps"), this)),
      lvwCollection_(new NameList(this)),
      imgMap_(new PictureBox(this)),
      lblSize_(new QLabel(this)),
      txtMap_(readOnlyField("txtMap", this)),
      txtDirectory_(readOnlyField("txtDirectory", this)) {
    setObjectName("frmMapsCollection");
    setWindowTitle(tr("Select map"));
    lvwCollection_->setObjectName("lvwCollection");
    lvwCollection_->setAccessibleName(tr("Maps"));
    imgMap_->setObjectName("imgMap");
    imgMap_->setAccessibleName(tr("The selected map"));
    lblSize_->setObjectName("lblSize");
    buildTools();
    buildLayout();
    connect(lvwCollection_, &QListWidget::currentItemChanged, this, [this] { showMap(); });
    connect(lvwCollection_, &QListWidget::itemDoubleClicked, this, [this] { accept(); });
    connect(lvwCollection_, &NameList::nameTyped, this, &frmMapsCollection::renameMapTo);
    fillMapList();
    lvwCollection_->setFocus();
}

void frmMapsCollection::buildTools() {
    const auto tool = [this](const char* name, const char* icon, const QString& text,
                             const QString& hint, const QKeySequence& keys, auto handler) {
        return tlbMap_->add({name, icon, text, hint, keys}, [this, handler] {
            lvwCollection_->finishRenaming();
            (this->*handler)();
        });
    };
    using Self = frmMapsCollection;
    needMap_ << tool("btnDeleteMap", "map-delete", tr("Delete"), tr("delete map"), {},
                     &Self::deleteMapAsked);
    needMap_ << tlbMap_->add({"btnRenameMap", "map-rename", tr("Rename"), tr("rename map"), {}},
                             [this] { lvwCollection_->startRenaming(); });
    tlbMap_->addSeparator();
    tool("btnImportMap", "map-import", tr("Import map"), tr("import map"),
         QKeySequence(u"Ctrl+I"_s), &Self::importMap);
    tool("btnSetDefaultMap", "map-default", tr("Set as default"), tr("set as default map"), {},
         &Self::setSelectedAsDefault);
    tlbMap_->addSeparator();
    tlbMap_->add({"cmdHelp", "help", tr("Help"), tr("Help"), QKeySequence(Qt::Key_F1)}, [this] {
        openHelpTopic(workspace_, shell_, u"MapSelection.htm"_s, tr("Help file not found"));
    });
}

void frmMapsCollection::buildLayout() {
    const int letter = fontMetrics().averageCharWidth();
    auto* lists = new QSplitter(this);
    lists->addWidget(lvwCollection_);
    lists->addWidget(imgMap_);
    lists->setStretchFactor(1, 1);
    lists->setChildrenCollapsible(false);
    lists->setSizes({28 * letter, 72 * letter});
    lvwCollection_->setMinimumWidth(16 * letter);
    imgMap_->setMinimumSize(400, 300);

    auto* fields = new QFormLayout;
    fields->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    auto* mapRow = new QHBoxLayout;
    mapRow->addWidget(txtMap_, 1);
    mapRow->addWidget(lblSize_);
    fields->addRow(tr("&Map:"), mapRow);
    qobject_cast<QLabel*>(fields->labelForField(mapRow))->setBuddy(txtMap_);
    fields->addRow(tr("&Folder:"), txtDirectory_);

    auto* buttons = new QDialogButtonBox(this);
    auto* cmdOk = buttons->addButton(QDialogButtonBox::Ok);
    auto* cmdClose = buttons->addButton(QDialogButtonBox::Cancel);
    cmdOk->setObjectName("cmdOk");
    cmdOk->setDefault(true);
    cmdClose->setObjectName("cmdClose");
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* column = new QVBoxLayout(this);
    column->addWidget(tlbMap_);
    column->addWidget(lists, 1);
    column->addLayout(fields);
    column->addWidget(buttons);
    resize(sizeHint().expandedTo({100 * letter, 0}));
}

void frmMapsCollection::fillMapList(const QString& selectName) {
    const QString defaultName = defaultMapName(workspace_);
    {
        const QSignalBlocker quiet(lvwCollection_);
        lvwCollection_->clear();
        for (const QString& name : mapNames(workspace_.folder)) {
            QListWidgetItem* row = lvwCollection_->addRow(stripExtension(name), name,
                                                          mapPath(workspace_.folder, name));
            setBold(*row, trimBlanks(name).toLower() == defaultName);
        }
        QListWidgetItem* selected = lvwCollection_->rowOf(
            selectName.isEmpty() ? firstMapName(workspace_.settings) : selectName);
        lvwCollection_->setCurrentItem(selected ? selected : lvwCollection_->item(0));
    }
    showMap();
}

void frmMapsCollection::showMap() {
    const HourglassGuard hourglass(shell_);
    const QListWidgetItem* row = lvwCollection_->currentItem();
    for (QAction* tool : needMap_) {
        tool->setEnabled(row != nullptr);
    }
    QImage picture;
    QString size;
    if (row) {
        try {
            picture = decodePicture(host_files::read(NameList::tagOf(row), MaxPictureBytes));
            size = tr("%1 x %2 pixels").arg(picture.width()).arg(picture.height());
        } catch (const Error&) {
            size.clear();
        }
    }
    txtMap_->setText(NameList::keyOf(row));
    txtDirectory_->setText(
        row ? QDir::toNativeSeparators(host_files::toHost(getFolder(NameList::tagOf(row))))
            : QString());
    lblSize_->setText(size);
    imgMap_->setEmptyText(row ? tr("This file cannot be shown.")
                              : tr("There is no map yet. Import one."));
    imgMap_->setImage(picture);
}

void frmMapsCollection::refuse(const QString& text) {
    shell_.messageBox({text, Icon::Critical, Buttons::Ok, {}});
}

void frmMapsCollection::importMap() {
    const QString source = trimBlanks(shell_.openFileName({tr("Select map"), {}, ImportFilter}));
    if (source.isEmpty()) {
        return;
    }
    const HourglassGuard hourglass(shell_);
    const QString refusal = checkMapFile(source);
    if (!refusal.isEmpty()) {
        refuse(refusal);
        return;
    }
    const QString maps = workspace_.folder.maps();
    const QString name = freeFileName(maps, validFileName(getFileName(source)));
    frmCopy(workspace_, shell_, this).Init(source, maps + u'\\' + name);
    fillMapList(name);
}

void frmMapsCollection::renameMapTo(const QString& name, const QString& newStem) {
    const QString refusal = renameMap(workspace_, name, newStem);
    if (!refusal.isEmpty()) {
        refuse(refusal);
        return;
    }
    const QString newName = newStem + u'.' + getExtension(name);
    QListWidgetItem* row = lvwCollection_->rowOf(name);
    const QStringList names = mapNames(workspace_.folder);
    // A name that differs in case alone can be another map's, which has a row of its own.
    if (row && !names.contains(name) && names.contains(newName)) {
        NameList::setRow(*row, newStem, newName, mapPath(workspace_.folder, newName));
        showMap();
    }
}

void frmMapsCollection::deleteMapAsked() {
    QListWidgetItem* row = lvwCollection_->currentItem();
    const QString refusal = deletingMapRefusal(workspace_, NameList::keyOf(row));
    if (!refusal.isEmpty()) {
        refuse(refusal);
        return;
    }
    if (shell_.messageBox(
            {tr("Delete selected map ?"), Icon::Question, Buttons::YesNo, {}, true}) !=
        Answer::Yes) {
        return;
    }
    const bool wasDefault = row->font().bold();
    const QString file = NameList::tagOf(row);
    if (!trash::discardFile(file) && host_files::fileExists(file)) {
        return;
    }
    delete row;
    if (QListWidgetItem* first = lvwCollection_->item(0)) {
        lvwCollection_->setCurrentItem(first);
        // A mark on the screen alone: what the next start shows is not decided here.
        setBold(*first, first->font().bold() || wasDefault);
    }
    showMap();
}

void frmMapsCollection::setSelectedAsDefault() {
    const QListWidgetItem* selected = lvwCollection_->currentItem();
    if (!selected) {
        return;
    }
    for (int i = 0; i < lvwCollection_->count(); ++i) {
        setBold(*lvwCollection_->item(i), lvwCollection_->item(i) == selected);
    }
    setDefaultMap(workspace_.settings, NameList::keyOf(selected));
}

void frmMapsCollection::accept() {
    lvwCollection_->finishRenaming();
    const QString path = NameList::tagOf(lvwCollection_->currentItem());
    if (!path.isEmpty()) {
        if (!isCurrentMap(workspace_, path)) {
            const QString refusal = checkMapFile(path);
            if (!refusal.isEmpty()) {
                refuse(refusal);
                return;
            }
            if (shell_.messageBox(
                    {tr("Selecting a new map all symbols will be deleted. Do you want "
                        "to continue ?"),
                     Icon::Question,
                     Buttons::YesNo,
                     {},
                     true}) != Answer::Yes) {
                return;
            }
        }
        chosenMap_ = path;
    }
    QDialog::accept();
}

void frmMapsCollection::done(int result) {
    lvwCollection_->finishRenaming();
    QDialog::done(result);
}

}  // namespace nubivane
