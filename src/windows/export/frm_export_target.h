// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>

class QComboBox;
class QFormLayout;
class QLineEdit;

namespace nubivane {

class Explorer;
class FileList;
class Shell;
class Workspace;

/// How the dialogs that ask for the file of an export differ.
struct ExportTarget {
    const char* name;  ///< of the window
    QString caption;
    QString folder;  ///< where it begins, a path text; one that is not there leaves it at the root
    QString fileName;   ///< proposed
    QString extension;  ///< with its point, in lower case
    QString type;       ///< the one kind of file there is
    QString helpTopic;
};

/// What the dialogs of the animated exports have in common: a folder from the tree, the files that
/// are there, and a name. Accepted, it has the path of a file that may be written.
class ExportTargetDialog : public QDialog {
    Q_OBJECT

  public:
    /// The file to write, as a path text; empty until the dialog was accepted.
    const QString& FileName() const { return FileName_; }

  protected:
    ExportTargetDialog(const ExportTarget& target, Workspace& workspace, Shell& shell,
                       QWidget* parent);

    Shell& shell() { return shell_; }
    /// Adds a row for what this dialog alone asks, or for a field with what stands beside it.
    void addOption(const QString& caption, QWidget* field);
    void addOption(const QString& caption, QWidget* field, QLayout* row);

    /// Whether the other fields hold what they may hold. Tells the person if they do not.
    virtual bool optionsAreValid() { return true; }

  private:
    QLayout* makeFields();
    QLayout* makeButtons();
    void cmdSave_Click();

    ExportTarget target_;
    Workspace& workspace_;
    Shell& shell_;
    Explorer* Explorer1_;
    FileList* File1_;
    QLineEdit* txtFileName_;
    QComboBox* cboExt_;
    QFormLayout* fields_;
    QWidget* lastField_;  ///< from which the Tab key goes on to the next one that is added
    QString FileName_;
};

/// `cboCompression`: the entries "1:1" and so on, whose data are the numbers.
QComboBox* makeCompression();

}  // namespace nubivane
