// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/publish/frm_page_setting.h"

#include "engine/core/host_files.h"
#include "engine/core/number_text.h"
#include "engine/core/path_text.h"
#include "engine/core/settings_store.h"
#include "engine/core/shell.h"
#include "engine/model/forecast.h"
#include "engine/model/workspace.h"
#include "windows/widgets/at_once.h"
#include "windows/widgets/combo_color.h"
#include "windows/widgets/combo_ex.h"
#include "windows/widgets/named_label.h"
#include "windows/widgets/one_line.h"
#include "windows/widgets/select_on_focus.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>

#include <algorithm>
#include <array>
#include <tuple>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

constexpr int DefaultTimer = 4;
constexpr int FieldCharacters = 36;
constexpr int ResponsiveIndent = 24;  // below the text of its option button
constexpr int EffectsGap = 6;         // sets the effect apart from the types

// Numbers of the option buttons.
constexpr int NavigationButtons = 0;
constexpr int ExtendedView = 1;
constexpr int TimeInterval = 2;
constexpr int Responsive = 4;

constexpr int FirstTypeRow = 1;
constexpr int TimeIntervalRow = FirstTypeRow + 1;
constexpr int ResponsiveRow = FirstTypeRow + 4;
constexpr int LastType = 5;

// Tags of the languages whose words the page knows.
constexpr std::array languages = {"ar", "bg", "ca", "cs", "da", "de", "el", "en", "es",
                                  "fi", "fr", "he", "hr", "hu", "it", "nb", "nl", "pl",
                                  "pt", "ro", "ru", "sk", "sl", "sv", "tr", "uk"};

/// A setting's number as far as it lies within the limits, else `otherwise`.
int numberWithin(const SettingsStore& settings, Setting setting, int low, int high, int otherwise) {
    const int number = settings.number(setting).value_or(otherwise);
    return low <= number && number <= high ? number : otherwise;
}

QGroupBox* makeFrame(const char* name, const QString& caption) {
    auto* frame = new QGroupBox(caption);
    frame->setObjectName(name);
    return frame;
}

}  // namespace

frmPageSetting::frmPageSetting(Workspace& workspace, Shell& shell, QWidget* parent)
    : QDialog(parent), workspace_(workspace), shell_(shell) {
    setObjectName("frmPageSetting");
    setWindowTitle(tr("Html page options"));
    // Made in the order in which the keyboard walks.
    auto* column = new QVBoxLayout(this);
    column->addWidget(makeGeneralFrame());
    column->addWidget(makeDisplayFrame());
    column->addStretch();
    column->addWidget(makeButtons());
    cboBackcolor_->setColor(NoColor);
    watchChanges();
    answerKeysAtOnce(*this);
}

void frmPageSetting::Init() {
    {
        const HourglassGuard hourglass(shell_);
        loadPageSettings();
    }
    txtHTMLtitle_->setFocus();
    txtHTMLtitle_->selectAll();
    exec();
}

QWidget* frmPageSetting::makeGeneralFrame() {
    QGroupBox* frame = makeFrame("fraSettings", tr("General settings"));
    txtHTMLtitle_ = makeTextBox("txtHTMLtitle");
    txtHTMLfilename_ = makeTextBox("txtHTMLfilename");
    cboBackcolor_ = new comboColor;
    cboBackcolor_->setObjectName("cboBackcolor");
    txtBackFile_ = makeTextBox("txtBackFile");
    auto* grid = new QGridLayout(frame);
    grid->addWidget(makeLabel("lblPageTitle", tr("&Title:"), txtHTMLtitle_), 0, 0);
    grid->addWidget(txtHTMLtitle_, 0, 1, 1, 3);
    grid->addWidget(makeLabel("lblPageName", tr("Html &name:"), txtHTMLfilename_), 1, 0);
    grid->addWidget(txtHTMLfilename_, 1, 1, 1, 3);
    grid->addWidget(makeLabel("lblBackColorPage", tr("Back &color:"), cboBackcolor_), 2, 0);
    grid->addWidget(cboBackcolor_, 2, 1, Qt::AlignLeft);
    grid->addWidget(makeLabel("lblBackImagePage", tr("Back &image:"), txtBackFile_), 3, 0);
    grid->addWidget(txtBackFile_, 3, 1);
    grid->addWidget(makeButton("cmdBrowse", tr("&Browse"), &frmPageSetting::cmdBrowse_Click), 3, 2);
    grid->addWidget(makeButton("cmdClear", tr("Cl&ear"), &frmPageSetting::cmdClear_Click), 3, 3);
    grid->setColumnStretch(1, 1);
    return frame;
}

QWidget* frmPageSetting::makeDisplayFrame() {
    QGroupBox* frame = makeFrame("fraDisplay", tr("Display"));
    auto* grid = new QGridLayout(frame);
    chkShowText_ = new QCheckBox(tr("&Show text"));
    chkShowText_->setObjectName("chkShowText");
    chkShowText_->setChecked(true);
    grid->addWidget(chkShowText_, 0, 0, 1, 3);
    addTypes(*grid);
    addTimer(*grid, TimeIntervalRow);
    addResponsiveOptions(*grid, ResponsiveRow);
    cboEffects_ = new comboEx;
    cboEffects_->setObjectName("cboEffects");
    cboEffects_->addItems({tr("(None)"), tr("BlendTrans (only IE 4.x)")});
    auto* effects = new QHBoxLayout;
    effects->addWidget(makeLabel("lblEffects", tr("E&ffects:"), cboEffects_));
    effects->addWidget(cboEffects_);
    effects->addStretch();
    grid->setRowMinimumHeight(ResponsiveRow + 1, EffectsGap);
    grid->addLayout(effects, ResponsiveRow + 2, 0, 1, 4);
    grid->setColumnStretch(3, 1);
    return frame;
}

/// The option buttons stand in another order than that of their numbers.
void frmPageSetting::addTypes(QGridLayout& grid) {
    optHtmlType_ = new QButtonGroup(this);
    int row = FirstTypeRow;
    for (const auto& [number, caption] : {std::pair(NavigationButtons, tr("Na&vigation buttons")),
                                          std::pair(TimeInterval, tr("Ti&me interval")),
                                          std::pair(ExtendedView, tr("E&xtended view")),
                                          std::pair(Responsive, tr("&Responsive page"))}) {
        auto* button = new QRadioButton(caption);
        button->setObjectName(u"optHtmlType"_s + QString::number(number));
        // The Tab key stops at the checked button alone; arrows go on to the others.
        button->setFocusPolicy(Qt::ClickFocus);
        connect(button, &QRadioButton::toggled, button, [button](bool checked) {
            button->setFocusPolicy(checked ? Qt::StrongFocus : Qt::ClickFocus);
        });
        optHtmlType_->addButton(button, number);
        grid.addWidget(button, row++, 0);
    }
    optHtmlType_->button(NavigationButtons)->setChecked(true);
}

/// The seconds stand beside the type that they belong to.
void frmPageSetting::addTimer(QGridLayout& grid, int row) {
    scrollTimer_ = new QSpinBox;
    scrollTimer_->setObjectName("scrollTimer");
    scrollTimer_->setAccessibleName(tr("Seconds between the maps"));
    scrollTimer_->setRange(1, 10);
    new SelectOnFocus(scrollTimer_);
    scrollTimer_->findChild<QLineEdit*>()->setObjectName("txtTime");
    lblTime_ = makeLabel("lblTime", tr("secon&ds"), scrollTimer_);
    grid.addWidget(scrollTimer_, row, 1);
    grid.addWidget(lblTime_, row, 2);
}

/// What belongs to the responsive page alone stands below its button.
void frmPageSetting::addResponsiveOptions(QGridLayout& grid, int row) {
    cboLanguage_ = new comboEx;
    cboLanguage_->setObjectName("cboLanguage");
    cboLanguage_->addItem(tr("That of the system"), QString());
    for (const char* tag : languages) {
        const QString name = QLocale(QLatin1String(tag)).nativeLanguageName();
        cboLanguage_->addItem(name.left(1).toUpper() + name.mid(1), QLatin1String(tag));
    }
    cboTheme_ = new comboEx;
    cboTheme_->setObjectName("cboTheme");
    cboTheme_->addItems({tr("Automatic"), tr("Light"), tr("Dark")});
    cboPlay_ = new comboEx;
    cboPlay_->setObjectName("cboPlay");
    cboPlay_->addItems({tr("(None)"), tr("Shown"), tr("Starts by itself")});
    auto* options = new QGridLayout;
    options->setContentsMargins(ResponsiveIndent, 0, 0, 0);
    int line = 0;
    for (const auto& [name, caption, box] :
         {std::tuple("lblLanguage", tr("Lan&guage:"), cboLanguage_),
          std::tuple("lblTheme", tr("C&olors:"), cboTheme_),
          std::tuple("lblPlay", tr("&Play button:"), cboPlay_)}) {
        QLabel* label = makeLabel(name, caption, box);
        responsiveOptions_ << label << box;
        options->addWidget(label, line, 0);
        options->addWidget(box, line++, 1, Qt::AlignLeft);
    }
    options->setColumnStretch(1, 1);
    grid.addLayout(options, row, 0, 1, 4);
    enableTypeOptions();
}

/// Of the desktop's own kind and order.
QDialogButtonBox* frmPageSetting::makeButtons() {
    auto* box = new QDialogButtonBox(this);
    const auto add = [&](QDialogButtonBox::StandardButton kind, const char* name,
                         const QString& caption, void (frmPageSetting::*click)()) {
        QPushButton* button = box->addButton(kind);
        button->setObjectName(name);
        button->setText(caption);
        connect(button, &QPushButton::clicked, this, click);
        return button;
    };
    add(QDialogButtonBox::Ok, "cmdOK", tr("OK"), &frmPageSetting::cmdOK_Click)->setDefault(true);
    add(QDialogButtonBox::Cancel, "cmdCancel", tr("Cancel"), &frmPageSetting::reject);
    cmdApply_ =
        add(QDialogButtonBox::Apply, "cmdApply", tr("App&ly"), &frmPageSetting::cmdApply_Click);
    add(QDialogButtonBox::Help, "cmdHelp", tr("&Help"), &frmPageSetting::cmdHelp_Click);
    return box;
}

QPushButton* frmPageSetting::makeButton(const char* name, const QString& caption,
                                        void (frmPageSetting::*click)()) {
    auto* button = new QPushButton(caption);
    button->setObjectName(name);
    connect(button, &QPushButton::clicked, this, click);
    return button;
}

QLineEdit* frmPageSetting::makeTextBox(const char* name) {
    auto* box = new QLineEdit;
    box->setObjectName(name);
    box->setMinimumWidth(fontMetrics().averageCharWidth() * FieldCharacters);
    new SelectOnFocus(box);
    keepOneLine(*box);
    return box;
}

void frmPageSetting::watchChanges() {
    const auto changed = [this] { cmdApply_->setEnabled(true); };
    for (const QLineEdit* box : {txtHTMLtitle_, txtHTMLfilename_, txtBackFile_}) {
        connect(box, &QLineEdit::textChanged, this, changed);
    }
    for (const QComboBox* box :
         {static_cast<QComboBox*>(cboBackcolor_), cboEffects_, cboLanguage_, cboTheme_, cboPlay_}) {
        connect(box, &QComboBox::currentIndexChanged, this, changed);
    }
    connect(chkShowText_, &QCheckBox::toggled, this, changed);
    connect(scrollTimer_, &QSpinBox::valueChanged, this, changed);
    connect(optHtmlType_, &QButtonGroup::idToggled, this, changed);
    connect(optHtmlType_, &QButtonGroup::idToggled, this, &frmPageSetting::enableTypeOptions);
}

void frmPageSetting::loadPageSettings() {
    const SettingsStore& settings = workspace_.settings;
    txtHTMLfilename_->setText(settings.text(Setting::PageFilename));
    txtHTMLtitle_->setText(settings.text(Setting::PageTitle));
    loadBackcolor();
    txtBackFile_->setText(host_files::toHost(settings.text(Setting::PageBackpicture)));
    loadTimer();
    loadType();
    cboEffects_->setCurrentIndex(numberWithin(settings, Setting::PageEffects, 0, 1, 1));
    chkShowText_->setChecked(numberWithin(settings, Setting::PageShowForecastText, 0, 1, 1) == 1);
    loadResponsiveOptions();
    cmdApply_->setEnabled(false);
}

void frmPageSetting::loadBackcolor() {
    const auto color = toInt32(workspace_.settings.text(Setting::PageBackcolorInDialog));
    const int before = cboBackcolor_->currentIndex();
    if (color) {
        cboBackcolor_->setColor(*color);
    }
    if (cboBackcolor_->currentIndex() < 0) {
        cboBackcolor_->setCurrentIndex(before);
    }
}

void frmPageSetting::loadTimer() {
    const auto seconds = workspace_.settings.number(Setting::PageTimer);
    if (!seconds) {
        workspace_.settings.set(Setting::PageTimer, QString::number(DefaultTimer));
    }
    scrollTimer_->setValue(seconds.value_or(DefaultTimer));
}

void frmPageSetting::loadType() {
    const int type = numberWithin(workspace_.settings, Setting::PageType, 1, LastType, 1);
    // The fourth type has no button.
    if (QAbstractButton* button = optHtmlType_->button(type - 1)) {
        button->setChecked(true);
    }
    enableTypeOptions();
}

void frmPageSetting::loadResponsiveOptions() {
    const SettingsStore& settings = workspace_.settings;
    const QString language = settings.text(Setting::PageLanguage);
    if (cboLanguage_->findData(language) < 0) {
        cboLanguage_->addItem(language, language);  // one that was set by hand
    }
    cboLanguage_->setCurrentIndex(cboLanguage_->findData(language));
    cboTheme_->setCurrentIndex(numberWithin(settings, Setting::PageTheme, 0, 2, 0));
    cboPlay_->setCurrentIndex(numberWithin(settings, Setting::PagePlay, 0, 2, 1));
}

/// The responsive page plays at the pace of the timed one.
void frmPageSetting::enableTypeOptions() {
    const int type = optHtmlType_->checkedId();
    const bool timed = type == TimeInterval || type == Responsive;
    scrollTimer_->setEnabled(timed);
    lblTime_->setEnabled(timed);
    for (QWidget* option : responsiveOptions_) {
        option->setEnabled(type == Responsive);
    }
}

void frmPageSetting::savePageSettings() {
    SettingsStore& settings = workspace_.settings;
    settings.set(Setting::PageFilename, txtHTMLfilename_->text());
    settings.set(Setting::PageTitle, txtHTMLtitle_->text());
    settings.set(Setting::PageBackcolor, cboBackcolor_->key().mid(1));
    settings.set(Setting::PageBackpicture, host_files::toModel(txtBackFile_->text()));
    settings.set(Setting::PageType, QString::number(optHtmlType_->checkedId() + 1));
    settings.set(Setting::PageEffects, QString::number(cboEffects_->currentIndex()));
    scrollTimer_->interpretText();
    settings.set(Setting::PageTimer, QString::number(scrollTimer_->value()));
    settings.set(Setting::PageShowForecastText, chkShowText_->isChecked() ? u"1"_s : u"0"_s);
    settings.set(Setting::PageLanguage, cboLanguage_->currentData().toString());
    settings.set(Setting::PageTheme, QString::number(cboTheme_->currentIndex()));
    settings.set(Setting::PagePlay, QString::number(cboPlay_->currentIndex()));
}

bool frmPageSetting::fileNameIsValid() {
    const QString name = trimBlanks(txtHTMLfilename_->text()).toLower();
    if (!name.endsWith(QLatin1String(".htm")) && !name.endsWith(QLatin1String(".html"))) {
        return true;
    }
    shell_.messageBox(
        {tr("Insert a file name without htm/html extension"), Icon::Exclamation, Buttons::Ok, {}});
    txtHTMLfilename_->setFocus();
    txtHTMLfilename_->selectAll();
    return false;
}

void frmPageSetting::cmdOK_Click() {
    if (fileNameIsValid()) {
        savePageSettings();
        accept();
    }
}

void frmPageSetting::cmdApply_Click() {
    if (fileNameIsValid()) {
        savePageSettings();
        cmdApply_->setEnabled(false);
    }
}

void frmPageSetting::cmdBrowse_Click() {
    const QString file = shell_.openFileName({tr("Select picture"), workspace_.folder.path(),
                                              tr("All picture files |*.gif;*.jpg;*.jpeg;|"
                                                 "gif (*.gif)|*.gif|"
                                                 "jpg (*.jpg)|*.jpg|"
                                                 "jpeg (*.jpeg)|*.jpeg|")});
    if (file.isEmpty() || !host_files::fileExists(file)) {
        return;
    }
    const HourglassGuard hourglass(shell_);
    txtBackFile_->setText(host_files::toHost(file));
    txtBackFile_->setFocus();
    txtBackFile_->selectAll();
}

void frmPageSetting::cmdClear_Click() {
    txtBackFile_->clear();
}

void frmPageSetting::cmdHelp_Click() {
    Q_EMIT helpAsked(QStringLiteral("PageSettings.htm"));
}

}  // namespace nubivane
