// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>

class QButtonGroup;
class QCheckBox;
class QComboBox;
class QDialogButtonBox;
class QGridLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QSpinBox;

namespace nubivane {

class comboColor;
class Shell;
class Workspace;

/// "Html page options": how forecast pages are made. Each value is a setting of the user's, so a
/// change counts from the next page on, in any project.
class frmPageSetting : public QDialog {
    Q_OBJECT

  public:
    frmPageSetting(Workspace& workspace, Shell& shell, QWidget* parent);

    /// Shows the settings and waits until the dialog is closed.
    void Init();

    /// Reads the settings into the controls. A value that no control can show leaves its control
    /// as it was.
    void loadPageSettings();
    void savePageSettings();

  Q_SIGNALS:
    void helpAsked(const QString& topic);

  private:
    QWidget* makeGeneralFrame();
    QWidget* makeDisplayFrame();
    void addTypes(QGridLayout& grid);
    void addTimer(QGridLayout& grid, int row);
    void addResponsiveOptions(QGridLayout& grid, int row);
    QDialogButtonBox* makeButtons();
    QPushButton* makeButton(const char* name, const QString& caption,
                            void (frmPageSetting::*click)());
    QLineEdit* makeTextBox(const char* name);
    void watchChanges();

    void loadBackcolor();
    void loadTimer();
    void loadType();
    void loadResponsiveOptions();
    void enableTypeOptions();
    bool fileNameIsValid();

    void cmdOK_Click();
    void cmdApply_Click();
    void cmdBrowse_Click();
    void cmdClear_Click();
    void cmdHelp_Click();

    Workspace& workspace_;
    Shell& shell_;
    QLineEdit* txtHTMLtitle_;
    QLineEdit* txtHTMLfilename_;
    comboColor* cboBackcolor_;
    QLineEdit* txtBackFile_;
    QCheckBox* chkShowText_;
    QButtonGroup* optHtmlType_;  ///< a button's number plus one is its value of "Type"
    QSpinBox* scrollTimer_;      ///< `txtTime` is its text box
    QLabel* lblTime_;
    QComboBox* cboLanguage_;  ///< an item's data is the tag that is stored
    QComboBox* cboTheme_;
    QComboBox* cboPlay_;
    QList<QWidget*> responsiveOptions_;
    QComboBox* cboEffects_;
    QPushButton* cmdApply_;
};

}  // namespace nubivane
