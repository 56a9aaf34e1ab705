// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLineEdit>

#include <functional>

namespace nubivane {

class Shell;

/// A one-line field of a form that commits at once. Enter stays in the field and selects it.
class TextField : public QLineEdit {
    Q_OBJECT

  public:
    explicit TextField(QWidget* parent = nullptr);

  protected:
    /// What Enter does before the field is selected.
    virtual void entered() {}
    /// The keyboard has gone to another field of the same window.
    virtual void left() {}

    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
};

/// A field whose text is checked by Enter and on leaving: a good one is applied, a bad one is
/// replaced by the value that stands, and an error box says why.
class CheckedField : public TextField {
    Q_OBJECT

  public:
    CheckedField(Shell& shell, const QString& refusal, QWidget* parent = nullptr);

    /// From now on `apply` takes a text if it is good and tells whether it was, and `value` is what
    /// stands, as text. Until then the field is at rest.
    void bind(std::function<QString()> value, std::function<bool(const QString&)> apply);

    /// Shows the value that stands.
    void showValue() { setText(value_()); }
    /// Checks and applies the text now, with the box if it is bad.
    void commit();
    /// Shows the value that stands and says that the text was refused.
    void refuse();

  protected:
    void entered() override { commit(); }
    void left() override;

  private:
    bool take();

    std::function<QString()> value_;
    std::function<bool(const QString&)> apply_;

    Shell& shell_;
    QString refusal_;
};

}  // namespace nubivane
