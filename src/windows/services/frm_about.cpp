// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/services/frm_about.h"

#include "engine/core/shell.h"
#include "engine/core/version.h"
#include "engine/services/publisher.h"
#include "windows/widgets/icons.h"
#include "windows/widgets/link_label.h"
#include "windows/widgets/named_label.h"

#include <QGridLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

constexpr int LogoSize = 128;
constexpr int Margin = 24;
constexpr int TextWidth = 340;

/// Colours of the ground, from top to bottom, and of what stands on it.
struct AboutColors {
    QColor top;
    QColor bottom;
    QColor text;
    QColor link;
};

AboutColors colorsFor(const QPalette& palette) {
    const bool dark = palette.color(QPalette::Window).lightness() < 128;
    return dark ? AboutColors{QColor(0x2c, 0x4a, 0x66), QColor(0x1a, 0x2a, 0x3a), Qt::white,
                              QColor(0x9c, 0xd0, 0xf7)}
                : AboutColors{Qt::white, QColor(0xcf, 0xe7, 0xf7), QColor(0x1f, 0x3c, 0x5a),
                              QColor(0x1b, 0x55, 0x91)};
}

/// A ground that changes from one colour to another from top to bottom.
class Gradient : public QWidget {
  public:
    Gradient(const QColor& top, const QColor& bottom) : top_(top), bottom_(bottom) {}

  protected:
    void paintEvent(QPaintEvent*) override {
        QLinearGradient ground(0, 0, 0, height());
        ground.setColorAt(0, top_);
        ground.setColorAt(1, bottom_);
        QPainter(this).fillRect(rect(), ground);
    }

  private:
    QColor top_;
    QColor bottom_;
};

QLabel* plainLabel(const char* name, const QString& text) {
    QLabel* label = makeLabel(name, text);
    label->setTextFormat(Qt::PlainText);
    return label;
}

void setPoints(QLabel& label, double factor, bool bold) {
    QFont font = label.font();
    font.setPointSizeF(QFontInfo(font).pointSizeF() * factor);
    font.setBold(bold);
    label.setFont(font);
}

}  // namespace

frmAbout::frmAbout(const Publisher& publisher, Shell& shell, QWidget* parent)
    : QDialog(parent), shell_(shell) {
    setObjectName("frmAbout");
    setWindowTitle(tr("About Nubivane"));
    const AboutColors colors = colorsFor(palette());
    auto* gradientAbout = new Gradient(colors.top, colors.bottom);
    gradientAbout->setObjectName("gradientAbout");
    QPalette onGround = palette();
    onGround.setColor(QPalette::WindowText, colors.text);
    gradientAbout->setPalette(onGround);
    auto* imgLogo = plainLabel("imgLogo", {});
    imgLogo->setPixmap(
        programIcon(u"logo"_s).pixmap(QSize(LogoSize, LogoSize), devicePixelRatioF()));
    auto* ground = new QHBoxLayout(gradientAbout);
    ground->setContentsMargins(Margin, Margin, Margin, Margin);
    ground->setSpacing(Margin);
    ground->addWidget(imgLogo, 0, Qt::AlignTop);
    ground->addWidget(makeTexts(publisher), 1);

    auto* cmdOK = new QPushButton(tr("OK"));
    cmdOK->setObjectName("cmdOK");
    cmdOK->setDefault(true);
    connect(cmdOK, &QPushButton::clicked, this, &QDialog::accept);
    auto* buttons = new QHBoxLayout;
    buttons->setContentsMargins(Margin / 2, 0, Margin / 2, Margin / 2);
    buttons->addStretch();
    buttons->addWidget(cmdOK);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(Margin / 2);
    column->addWidget(gradientAbout);
    column->addLayout(buttons);
    column->setSizeConstraint(QLayout::SetFixedSize);
    cmdOK->setFocus();
}

QWidget* frmAbout::makeTexts(const Publisher& publisher) {
    auto* texts = new QWidget;
    auto* column = new QVBoxLayout(texts);
    column->setContentsMargins(0, 0, 0, 0);
    QLabel* lblSoftware = plainLabel("lblSoftware", ProgramTitle);
    setPoints(*lblSoftware, 2, true);
    QLabel* lblVersion = plainLabel("lblVersion", QString(Version) + u" Beta"_s);
    setPoints(*lblVersion, 1.2, false);
    QLabel* lblLegal =
        plainLabel("lblLegal", tr("Nubivane is free software under the GNU General Public License, "
                                  "version 3 or later. It comes without any warranty."));
    lblLegal->setWordWrap(true);
    lblLegal->setFixedWidth(TextWidth);
    column->addWidget(lblSoftware);
    column->addWidget(lblVersion);
    column->addSpacing(Margin / 2);
    column->addWidget(lblLegal);
    column->addSpacing(Margin / 2);
    column->addWidget(makeLink("lblAdditionalInformation", tr("For additional information see:"),
                               "lblWebLink", publisher.webAddress, publisher.webAddress));
    column->addWidget(makeLink("lblTechnicalSupport", tr("For technical support question:"),
                               "lblEMail", publisher.supportAddress,
                               u"mailto:"_s + publisher.supportAddress));
    column->addStretch();
    return texts;
}

/// A caption with a link below it. Nothing is shown of an address that the build was not given.
QWidget* frmAbout::makeLink(const char* captionName, const QString& caption, const char* linkName,
                            const QString& text, const QString& address) {
    auto* pair = new QWidget;
    auto* column = new QVBoxLayout(pair);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(plainLabel(captionName, caption));
    auto* link = new LinkLabel(text, colorsFor(palette()).link);
    link->setObjectName(linkName);
    connect(link, &LinkLabel::activated, this, [this, address] { shell_.openAddress(address); });
    column->addWidget(link, 0, Qt::AlignLeft);
    pair->setVisible(!text.isEmpty());
    return pair;
}

}  // namespace nubivane
