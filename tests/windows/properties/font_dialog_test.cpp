// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/model/forecast.h"
#include "engine/model/sprites.h"
#include "windows/properties/frm_font.h"
#include "windows/properties/property_fixture.h"
#include "windows/properties/screen_fonts.h"

#include <QCheckBox>
#include <QFontDatabase>
#include <QGroupBox>
#include <QListWidget>
#include <QPushButton>

namespace nubivane {

using testing::partOf;
using testing::withModal;

/// The font dialog on a title.
class FontDialog : public testing::PropertyFixture {
  protected:
    FontDialog() {
        title.Font.Name = "Arial";
        title.Font.Size = 14;
    }
    template <class Object>
    static void withFont(Object& object, const std::function<void(QWidget&)>& use) {
        frmFont dialog(nullptr);
        dialog.oFont = &object.Font;
        withModal([&] { dialog.Init(); }, use);
    }
    static QListWidget& list(QWidget& window, const char* name) {
        return partOf<QListWidget>(window, name);
    }
    static QString selected(QWidget& window, const char* name) {
        const auto items = list(window, name).selectedItems();
        return items.isEmpty() ? QString() : items.first()->text();
    }
    static QStringList items(QWidget& window, const char* name) {
        QStringList texts;
        for (int row = 0; row < list(window, name).count(); ++row) {
            texts << list(window, name).item(row)->text();
        }
        return texts;
    }
    /// Clicks a row of a list.
    static void pick(QWidget& window, const char* name, const QString& row) {
        QListWidget& rows = list(window, name);
        const auto found = rows.findItems(row, Qt::MatchExactly);
        ASSERT_EQ(found.size(), 1) << row.toStdString();
        rows.scrollToItem(found.first());
        QTest::mouseClick(rows.viewport(), Qt::LeftButton, {},
                          rows.visualItemRect(found.first()).center());
        EXPECT_EQ(selected(window, name), row);
    }
    static void tick(QWidget& window, const char* name) {
        QTest::keyClick(&partOf<QWidget>(window, name), Qt::Key_Space);
    }
    static QLabel& sample(QWidget& window) { return partOf<QLabel>(window, "lblSample"); }

    cTitle title;
};

TEST_F(FontDialog, HasItsTitleListsAndGroups) {
    withFont(title, [](QWidget& window) {
        EXPECT_EQ(window.objectName(), "frmFont");
        EXPECT_EQ(window.windowTitle(), "Font");
        EXPECT_TRUE(window.isModal());
        EXPECT_EQ(items(window, "lstFont"), screenFonts());
        EXPECT_EQ(items(window, "lstFontStyle"),
                  QStringList({"Normal", "Italic", "Bold", "Bold italic"}));
        EXPECT_EQ(items(window, "lstFontSize"),
                  QStringList({"8", "10", "12", "14", "18", "24", "36"}));
        EXPECT_EQ(partOf<QGroupBox>(window, "fraEffects").title(), "Effects");
        EXPECT_EQ(partOf<QGroupBox>(window, "fraSample").title(), "Sample");
        EXPECT_EQ(sample(window).text(), "AaBbYyZz");
        QStringList labels;
        for (const QLabel* label : window.findChildren<QLabel*>()) {
            labels << label->text().remove(u'&');
        }
        for (const char* text : {"Font:", "Font style:", "Size:", "Color:"}) {
            EXPECT_TRUE(labels.contains(text)) << text;
        }
    });
}

TEST_F(FontDialog, ListsTheScreensFontsInThePlatformsOrder) {
    QStringList left = screenFonts();
    for (const char* name : {"Arial", "Courier New", "Times New Roman"}) {
        EXPECT_EQ(left.removeAll(name), 1) << name;
    }
    QStringList platform;
    for (const QString& family : QFontDatabase::families()) {
        if (!QFontDatabase::isPrivateFamily(family)) {
            platform << family;
        }
    }
    for (const char* name : {"Arial", "Courier New", "Times New Roman"}) {
        platform.removeAll(name);
    }
    EXPECT_EQ(left, platform);
}

TEST_F(FontDialog, ShowsTheObjectsFont) {
    title.Font.Underline = true;
    title.Font.Strikeout = true;
    title.Font.Color = 255;
    withFont(title, [](QWidget& window) {
        EXPECT_EQ(selected(window, "lstFont"), "Arial");
        EXPECT_EQ(text(window, "txtSelectedFont"), "Arial");
        EXPECT_EQ(selected(window, "lstFontSize"), "14");
        EXPECT_EQ(text(window, "txtSelectedSize"), "14");
        EXPECT_EQ(selected(window, "lstFontStyle"), "Normal");
        EXPECT_EQ(text(window, "txtSelectedStyle"), "Normal");
        EXPECT_TRUE(partOf<QCheckBox>(window, "chkUnderline").isChecked());
        EXPECT_FALSE(partOf<QCheckBox>(window, "chkOverline").isChecked());
        EXPECT_TRUE(partOf<QCheckBox>(window, "chkStrikeout").isChecked());
        EXPECT_EQ(chosen(window, "cboColor"), "Red");
    });
}

TEST_F(FontDialog, ShowsAnOverlineThatIsSet) {
    title.Font.Overline = true;
    withFont(title, [](QWidget& window) {
        EXPECT_TRUE(partOf<QCheckBox>(window, "chkOverline").isChecked());
        EXPECT_FALSE(partOf<QCheckBox>(window, "chkUnderline").isChecked());
    });
}

TEST_F(FontDialog, StylesStandForBoldAndItalic) {
    const struct {
        const char* name;
        bool bold;
        bool italic;
    } styles[] = {{"Normal", false, false},
                  {"Italic", false, true},
                  {"Bold", true, false},
                  {"Bold italic", true, true}};
    for (const auto& style : styles) {
        title.Font.Bold = style.bold;
        title.Font.Italic = style.italic;
        withFont(title,
                 [&](QWidget& window) { EXPECT_EQ(selected(window, "lstFontStyle"), style.name); });
        title.Font.Bold = !style.bold;
        title.Font.Italic = !style.italic;
        withFont(title, [&](QWidget& window) {
            pick(window, "lstFontStyle", style.name);
            click(window, "cmdOk");
        });
        EXPECT_EQ(title.Font.Bold, style.bold) << style.name;
        EXPECT_EQ(title.Font.Italic, style.italic) << style.name;
    }
}

TEST_F(FontDialog, OkStoresEachSize) {
    for (const int size : {8, 10, 12, 14, 18, 24, 36}) {
        withFont(title, [&](QWidget& window) {
            pick(window, "lstFontSize", QString::number(size));
            click(window, "cmdOk");
        });
        EXPECT_EQ(title.Font.Size, size);
    }
}

TEST_F(FontDialog, OkStoresWhatIsChosen) {
    withFont(title, [](QWidget& window) {
        pick(window, "lstFont", "Courier New");
        pick(window, "lstFontSize", "24");
        tick(window, "chkStrikeout");
        choose(window, "cboColor", "Blue");
        click(window, "cmdOk");
        EXPECT_FALSE(window.isVisible());
    });
    EXPECT_EQ(title.Font.Name, "Courier New");
    EXPECT_EQ(title.Font.Size, 24);
    EXPECT_TRUE(title.Font.Strikeout);
    EXPECT_FALSE(title.Font.Underline);
    EXPECT_FALSE(title.Font.Overline);
    EXPECT_EQ(title.Font.Color, 16711680);
}

TEST_F(FontDialog, TheUnderlineIsStoredAsOverlineToo) {
    withFont(title, [](QWidget& window) {
        tick(window, "chkUnderline");
        click(window, "cmdOk");
    });
    EXPECT_TRUE(title.Font.Underline);
    EXPECT_TRUE(title.Font.Overline);
}

TEST_F(FontDialog, TheOverlineAloneIsNotStored) {
    withFont(title, [](QWidget& window) {
        tick(window, "chkOverline");
        EXPECT_TRUE(partOf<QCheckBox>(window, "chkOverline").isChecked());
        click(window, "cmdOk");
    });
    EXPECT_FALSE(title.Font.Overline);
    EXPECT_FALSE(title.Font.Underline);
}

TEST_F(FontDialog, CancelAndEscChangeNothing) {
    for (const bool cancel : {true, false}) {
        withFont(title, [&](QWidget& window) {
            pick(window, "lstFontSize", "36");
            tick(window, "chkUnderline");
            if (cancel) {
                click(window, "cmdCancel");
            } else {
                QTest::keyClick(&window, Qt::Key_Escape);
            }
            EXPECT_FALSE(window.isVisible());
        });
        EXPECT_EQ(title.Font.Size, 14);
        EXPECT_FALSE(title.Font.Underline);
    }
}

TEST_F(FontDialog, EnterIsOk) {
    withFont(title, [](QWidget& window) {
        pick(window, "lstFontSize", "36");
        QTest::keyClick(&list(window, "lstFontSize"), Qt::Key_Return);
        EXPECT_FALSE(window.isVisible());
    });
    EXPECT_EQ(title.Font.Size, 36);
}

TEST_F(FontDialog, ASizeOutsideTheListShowsNoSelectionAndStays) {
    title.Font.Size = 11;
    withFont(title, [](QWidget& window) {
        EXPECT_EQ(selected(window, "lstFontSize"), "");
        list(window, "lstFontSize").setFocus();
        EXPECT_EQ(text(window, "txtSelectedSize"), "11");
        click(window, "cmdOk");
    });
    EXPECT_EQ(title.Font.Size, 11);
}

TEST_F(FontDialog, AFontThatTheScreenLacksStays) {
    title.Font.Name = "No such font";
    withFont(title, [](QWidget& window) {
        EXPECT_EQ(selected(window, "lstFont"), "");
        EXPECT_EQ(text(window, "txtSelectedFont"), "No such font");
        click(window, "cmdOk");
    });
    EXPECT_EQ(title.Font.Name, "No such font");
}

TEST_F(FontDialog, AColourWithoutAnItemLeavesTheBoxEmptyAndStays) {
    title.Font.Color = 254;
    withFont(title, [](QWidget& window) {
        EXPECT_EQ(partOf<QComboBox>(window, "cboColor").currentIndex(), -1);
        click(window, "cmdOk");
    });
    EXPECT_EQ(title.Font.Color, 254);
}

TEST_F(FontDialog, TheSampleFollowsEveryChange) {
    withFont(title, [](QWidget& window) {
        pick(window, "lstFont", "Courier New");
        EXPECT_EQ(sample(window).font().family(), "Courier New");
        EXPECT_EQ(text(window, "txtSelectedFont"), "Courier New");
        pick(window, "lstFontSize", "36");
        EXPECT_EQ(sample(window).font().pixelSize(), 48);  // 36 points at 96 dots an inch
        EXPECT_EQ(text(window, "txtSelectedSize"), "36");
        pick(window, "lstFontStyle", "Bold italic");
        EXPECT_TRUE(sample(window).font().bold());
        EXPECT_TRUE(sample(window).font().italic());
        EXPECT_EQ(text(window, "txtSelectedStyle"), "Bold italic");
        tick(window, "chkUnderline");
        EXPECT_TRUE(sample(window).font().underline());
        tick(window, "chkOverline");
        EXPECT_TRUE(sample(window).font().overline());
        tick(window, "chkStrikeout");
        EXPECT_TRUE(sample(window).font().strikeOut());
        choose(window, "cboColor", "Blue");
        EXPECT_EQ(sample(window).palette().color(QPalette::WindowText), QColor(0, 0, 255));
    });
}

TEST_F(FontDialog, TheSampleStandsOutFromItsGround) {
    for (const qint32 color : {0, 16777215, 65535, 255, -1}) {
        title.Font.Color = color;
        withFont(title, [&](QWidget& window) {
            const QPalette colors = sample(window).palette();
            const int ink = qGray(colors.color(QPalette::WindowText).rgb());
            const int ground = qGray(colors.color(QPalette::Window).rgb());
            EXPECT_GT(std::abs(ink - ground), 80) << color;
        });
    }
}

TEST_F(FontDialog, AHugeSizeLeavesTheDialogAsItIs) {
    QSize usual;
    withFont(title, [&](QWidget& window) { usual = window.size(); });
    title.Font.Size = 32767;
    withFont(title, [&](QWidget& window) { EXPECT_EQ(window.size(), usual); });
}

TEST_F(FontDialog, AFieldThatGetsTheKeyboardIsSelectedWhole) {
    withFont(title, [](QWidget& window) {
        for (const char* name : {"txtSelectedFont", "txtSelectedStyle", "txtSelectedSize"}) {
            auto& field = partOf<QLineEdit>(window, name);
            field.setFocus();
            EXPECT_EQ(field.selectedText(), field.text()) << name;
            EXPECT_FALSE(field.text().isEmpty()) << name;
        }
    });
}

TEST_F(FontDialog, WorksOnWhateverHasTheMembers) {
    cLabel label;
    cSubtitle subtitle;
    cHeaderAttribute header;
    cBodyAttribute body;
    const auto use = [](QWidget& window) {
        pick(window, "lstFontSize", "18");
        pick(window, "lstFontStyle", "Bold");
        click(window, "cmdOk");
    };
    withFont(label, use);
    withFont(subtitle, use);
    withFont(header, use);
    withFont(body, use);
    EXPECT_TRUE(label.Font.Size == 18 && label.Font.Bold);
    EXPECT_TRUE(subtitle.Font.Size == 18 && subtitle.Font.Bold);
    EXPECT_TRUE(header.Font.Size == 18 && header.Font.Bold);
    EXPECT_TRUE(body.Font.Size == 18 && body.Font.Bold);
}

TEST_F(FontDialog, WithoutAnObjectItDoesNotOpen) {
    frmFont dialog(nullptr);
    dialog.Init();
    EXPECT_FALSE(dialog.isVisible());
}

TEST(ScreenFonts, NamesOfTheWebAreOfferedWithAnySubstituteOfTheSameWidths) {
    for (const char* drawn : {"Liberation Sans", "Arimo", "Nimbus Sans", "TeX Gyre Heros"}) {
        const auto familyDrawn = [drawn](const QString& name) {
            return QString(name == u"Arial" ? drawn : "DejaVu Sans");
        };
        QStringList expected = {"Abel", "Arial", drawn, "Zilla"};
        EXPECT_EQ(withWebFonts({"Abel", drawn, "Zilla"}, familyDrawn), expected);
    }
    const auto other = [](const QString&) { return QStringLiteral("DejaVu Sans"); };
    EXPECT_EQ(withWebFonts({"Abel", "DejaVu Sans"}, other), QStringList({"Abel", "DejaVu Sans"}));
    const auto both = [](const QString& name) {
        return QString(name == u"Courier New" ? "Cousine" : "Tinos");
    };
    EXPECT_EQ(withWebFonts({"Arial"}, both),
              QStringList({"Arial", "Courier New", "Times New Roman"}));
}

}  // namespace nubivane
