// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/web/page_settings.h"
#include "support/fixtures.h"
#include "windows/publish/frm_page_setting.h"
#include "windows/widgets/combo_color.h"

#include <QAccessible>
#include <QApplication>
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QTest>
#include <QTimer>

#include <algorithm>
#include <functional>

namespace nubivane {

/// "Html page options", worked as a person does, with the settings that it leaves.
class PageSettingDialog : public testing::WorkspaceFixture {
  protected:
    using Steps = std::function<void()>;

    /// Opens the dialog as its menu entry does, takes the steps in it, and closes it if they did
    /// not.
    void run(const Steps& steps) {
        frmPageSetting dialog(workspace, shell, nullptr);
        QObject::connect(&dialog, &frmPageSetting::helpAsked, &dialog,
                         [this](const QString& topic) { topics << topic; });
        dialog_ = &dialog;
        QTimer::singleShot(0, &dialog, [this, &dialog, &steps] {
            ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
            EXPECT_TRUE(dialog.isModal());
            steps();
            dialog.reject();
        });
        dialog.Init();
        dialog_ = nullptr;
    }

    template <class Widget>
    Widget& find(const char* name) {
        return *dialog_->findChild<Widget*>(name);
    }
    QLineEdit& title() { return find<QLineEdit>("txtHTMLtitle"); }
    QLineEdit& filename() { return find<QLineEdit>("txtHTMLfilename"); }
    QLineEdit& backFile() { return find<QLineEdit>("txtBackFile"); }
    QLineEdit& time() { return find<QLineEdit>("txtTime"); }
    QSpinBox& spin() { return find<QSpinBox>("scrollTimer"); }
    comboColor& backcolor() { return find<comboColor>("cboBackcolor"); }
    QComboBox& effects() { return find<QComboBox>("cboEffects"); }
    QCheckBox& showText() { return find<QCheckBox>("chkShowText"); }
    QRadioButton& type(int index) {
        return find<QRadioButton>(qPrintable("optHtmlType" + QString::number(index)));
    }
    int checkedType() {
        int checked = -1;
        for (const int i : {0, 1, 2, 4}) {
            checked = type(i).isChecked() ? i : checked;
        }
        return checked;
    }
    QPushButton& button(const char* name) { return find<QPushButton>(name); }
    void press(const char* name) { QTest::mouseClick(&button(name), Qt::LeftButton); }
    bool isOpen() { return dialog_->isVisible(); }
    bool canApply() { return button("cmdApply").isEnabled(); }
    /// Replaces the text of a box by keys.
    void type(QLineEdit& box, const QString& text) {
        box.setFocus();
        box.selectAll();
        QTest::keyClick(&box, Qt::Key_Delete);
        QTest::keyClicks(&box, text);
    }

    static constexpr char Absent[] = "(absent)";
    /// What the store itself holds.
    QString stored(Setting setting) {
        const SettingRow& row = rowOf(setting);
        return settings.GetSetting(QLatin1String(row.section), QLatin1String(row.group),
                                   QLatin1String(row.key), Absent);
    }
    void expectNothingStored() {
        for (const Setting setting :
             {Setting::PageFilename, Setting::PageTitle, Setting::PageBackcolor,
              Setting::PageBackpicture, Setting::PageTimer, Setting::PageType, Setting::PageEffects,
              Setting::PageShowForecastText}) {
            EXPECT_EQ(stored(setting), Absent) << rowOf(setting).key;
        }
    }
    void expectRefusal() {
        shell.expectMessage("Insert a file name without htm/html extension", Icon::Exclamation);
    }

    QStringList topics;
    frmPageSetting* dialog_ = nullptr;
};

namespace {

QString plain(QString caption) {
    return caption.remove(u'&');
}

}  // namespace

TEST_F(PageSettingDialog, AnEmptyStoreShowsTheDefaultsAndWritesNothing) {
    run([this] {
        EXPECT_EQ(filename().text(), "Forecast");
        EXPECT_EQ(title().text(), "Forecast");
        EXPECT_EQ(backcolor().key(), "K-1");
        EXPECT_EQ(backFile().text(), "");
        EXPECT_EQ(time().text(), "4");
        EXPECT_EQ(spin().value(), 4);
        EXPECT_EQ(checkedType(), 0);
        EXPECT_EQ(effects().currentText(), "BlendTrans (only IE 4.x)");
        EXPECT_TRUE(showText().isChecked());
        EXPECT_FALSE(canApply());
        EXPECT_EQ(shell.pointer, Pointer::Default);
    });
    expectNothingStored();
}

TEST_F(PageSettingDialog, ItHasItsTexts) {
    run([this] {
        EXPECT_EQ(dialog_->windowTitle(), "Html page options");
        EXPECT_EQ(find<QGroupBox>("fraSettings").title(), "General settings");
        EXPECT_EQ(find<QGroupBox>("fraDisplay").title(), "Display");
        for (const auto& [name, caption] :
             {std::pair("lblPageTitle", "Title:"), std::pair("lblPageName", "Html name:"),
              std::pair("lblBackColorPage", "Back color:"),
              std::pair("lblBackImagePage", "Back image:"), std::pair("lblTime", "seconds"),
              std::pair("lblEffects", "Effects:")}) {
            EXPECT_EQ(plain(find<QLabel>(name).text()), caption);
        }
        for (const auto& [name, caption] :
             {std::pair("cmdBrowse", "Browse"), std::pair("cmdClear", "Clear"),
              std::pair("cmdOK", "OK"), std::pair("cmdCancel", "Cancel"),
              std::pair("cmdApply", "Apply")}) {
            EXPECT_EQ(plain(button(name).text()), caption);
        }
        EXPECT_EQ(button("cmdApply").text(), "App&ly");
        EXPECT_EQ(plain(showText().text()), "Show text");
        EXPECT_EQ(plain(type(0).text()), "Navigation buttons");
        EXPECT_EQ(plain(type(1).text()), "Extended view");
        EXPECT_EQ(plain(type(2).text()), "Time interval");
        ASSERT_EQ(effects().count(), 2);
        EXPECT_EQ(effects().itemText(0), "(None)");
        EXPECT_EQ(effects().itemText(1), "BlendTrans (only IE 4.x)");
        EXPECT_EQ(backcolor().count(), 116);
    });
}

TEST_F(PageSettingDialog, TheTypesStandInAnotherOrderThanThatOfTheirNumbers) {
    run([this] {
        EXPECT_LT(type(0).y(), type(2).y());
        EXPECT_LT(type(2).y(), type(1).y());
    });
}

TEST_F(PageSettingDialog, StoredValuesAreShown) {
    settings.set(Setting::PageFilename, " tomorrow ");
    settings.set(Setting::PageTitle, "Weather & more");
    settings.set(Setting::PageBackcolor, "36607");
    settings.set(Setting::PageBackpicture, model("Symbols/set-1/sun.gif"));
    settings.set(Setting::PageTimer, "9");
    settings.set(Setting::PageType, "2");
    settings.set(Setting::PageEffects, "0");
    settings.set(Setting::PageShowForecastText, "0");
    run([this] {
        EXPECT_EQ(filename().text(), " tomorrow ");
        EXPECT_EQ(title().text(), "Weather & more");
        EXPECT_EQ(backcolor().key(), "K36607");
        EXPECT_EQ(backFile().text(), host("Symbols/set-1/sun.gif")) << "as the system writes it";
        EXPECT_EQ(time().text(), "9");
        EXPECT_EQ(checkedType(), 1);
        EXPECT_EQ(effects().currentText(), "(None)");
        EXPECT_FALSE(showText().isChecked());
        EXPECT_FALSE(canApply());
    });
}

TEST_F(PageSettingDialog, TheSecondsAreAWholeNumberFromOneToTenAndMendedInTheStoreWhenNoNumber) {
    struct Row {
        const char* stored;
        const char* shown;
        const char* storedAfterwards;
    };
    for (const Row& row : {Row{"7", "7", "7"}, Row{"1", "1", "1"}, Row{"10", "10", "10"},
                           Row{" 3 ", "3", " 3 "}, Row{"4.7", "4", "4.7"}, Row{"0", "1", "0"},
                           Row{"-2", "1", "-2"}, Row{"25", "10", "25"}, Row{"abc", "4", "4"},
                           Row{"", "4", "4"}, Row{"5s", "4", "4"}, Row{"99999999999", "4", "4"}}) {
        settings.set(Setting::PageTimer, row.stored);
        run([&] {
            EXPECT_EQ(time().text(), row.shown) << row.stored;
            EXPECT_EQ(spin().value(), time().text().toInt());
            EXPECT_EQ(stored(Setting::PageTimer), row.storedAfterwards) << row.stored;
            EXPECT_FALSE(canApply());
        });
        EXPECT_EQ(stored(Setting::PageTimer), row.storedAfterwards) << row.stored;
    }
}

TEST_F(PageSettingDialog, AnyOtherTypeThanTheThreeIsShownAsTheFirstAndStaysUntilSaved) {
    struct Row {
        const char* stored;
        int checked;
    };
    for (const Row& row : {Row{"1", 0}, Row{"2", 1}, Row{"3", 2}, Row{"4", 0}, Row{"7", 0},
                           Row{"0", 0}, Row{"-1", 0}, Row{"abc", 0}, Row{"", 0}}) {
        settings.set(Setting::PageType, row.stored);
        run([&] {
            EXPECT_EQ(checkedType(), row.checked) << row.stored;
            for (const QWidget* widget :
                 {static_cast<QWidget*>(&time()), static_cast<QWidget*>(&spin()),
                  static_cast<QWidget*>(&find<QLabel>("lblTime"))}) {
                EXPECT_EQ(widget->isEnabled(), row.checked == 2) << row.stored;
            }
        });
        EXPECT_EQ(stored(Setting::PageType), row.stored);
        run([&] { press("cmdOK"); });
        EXPECT_EQ(stored(Setting::PageType), QString::number(row.checked + 1)) << row.stored;
    }
}

TEST_F(PageSettingDialog, AnyOtherEffectThanTheTwoIsShownAsTheSecond) {
    for (const auto& [value, index] : {std::pair("0", 0), std::pair("1", 1), std::pair("2", 1),
                                       std::pair("-1", 1), std::pair("x", 1), std::pair("", 1)}) {
        settings.set(Setting::PageEffects, value);
        run([this, value = value, index = index] {
            EXPECT_EQ(effects().currentIndex(), index) << value;
        });
        EXPECT_EQ(stored(Setting::PageEffects), value);
    }
}

TEST_F(PageSettingDialog, TheTextIsHiddenOnlyByAZero) {
    for (const auto& [value, checked] :
         {std::pair("0", false), std::pair("1", true), std::pair("2", true), std::pair("-1", true),
          std::pair("x", true), std::pair("", true)}) {
        settings.set(Setting::PageShowForecastText, value);
        run([this, value = value, checked = checked] {
            EXPECT_EQ(showText().isChecked(), checked) << value;
        });
        EXPECT_EQ(stored(Setting::PageShowForecastText), value);
    }
}

TEST_F(PageSettingDialog, AColourThatIsNotInTheListLeavesNone) {
    for (const auto& [value, key] :
         {std::pair("0", "K0"), std::pair("16777215", "K16777215"), std::pair("-1", "K-1"),
          std::pair("36608", "K-1"), std::pair("-2", "K-1"), std::pair("red", "K-1"),
          std::pair("", "K-1")}) {
        settings.set(Setting::PageBackcolor, value);
        run([this, value = value, key = key] { EXPECT_EQ(backcolor().key(), key) << value; });
        EXPECT_EQ(stored(Setting::PageBackcolor), value);
    }
}

TEST_F(PageSettingDialog, OkStoresEveryValueAndCloses) {
    run([this] {
        type(title(), "  Sea weather ");
        type(filename(), " sea ");
        backcolor().setColor(255);
        type(backFile(), "/pictures/clouds.jpg");
        QTest::mouseClick(&type(2), Qt::LeftButton);
        effects().setCurrentIndex(0);
        spin().setValue(8);
        showText().click();
        press("cmdOK");
        EXPECT_FALSE(isOpen());
    });
    EXPECT_EQ(stored(Setting::PageTitle), "  Sea weather ") << "as typed";
    EXPECT_EQ(stored(Setting::PageFilename), " sea ") << "as typed";
    EXPECT_EQ(stored(Setting::PageBackcolor), "255");
    EXPECT_EQ(stored(Setting::PageBackpicture), "\\pictures\\clouds.jpg");
    EXPECT_EQ(stored(Setting::PageType), "3");
    EXPECT_EQ(stored(Setting::PageEffects), "0");
    EXPECT_EQ(stored(Setting::PageTimer), "8");
    EXPECT_EQ(stored(Setting::PageShowForecastText), "0");
    EXPECT_EQ(stored(Setting::PagePoweredLabel), Absent);
}

TEST_F(PageSettingDialog, OkStoresTheDefaultsWhenNothingWasTouched) {
    run([this] { QTest::keyClick(&title(), Qt::Key_Return); });
    EXPECT_EQ(stored(Setting::PageTitle), "Forecast");
    EXPECT_EQ(stored(Setting::PageFilename), "Forecast");
    EXPECT_EQ(stored(Setting::PageBackcolor), "-1");
    EXPECT_EQ(stored(Setting::PageBackpicture), "");
    EXPECT_EQ(stored(Setting::PageType), "1");
    EXPECT_EQ(stored(Setting::PageEffects), "1");
    EXPECT_EQ(stored(Setting::PageTimer), "4");
    EXPECT_EQ(stored(Setting::PageShowForecastText), "1");
}

TEST_F(PageSettingDialog, APagesWriterReadsWhatWasStored) {
    run([this] {
        type(filename(), "sea");
        spin().setValue(2);
        press("cmdOK");
    });
    const PageSettings page = PageSettings::read(settings);
    EXPECT_EQ(page.filename, "sea");
    EXPECT_EQ(page.backcolor, -1);
    EXPECT_EQ(page.timer, 2);
    EXPECT_TRUE(page.effects);
    EXPECT_TRUE(page.showForecastText);
}

TEST_F(PageSettingDialog, CancelAndEscapeStoreNothing) {
    run([this] {
        type(title(), "Other");
        press("cmdCancel");
        EXPECT_FALSE(isOpen());
    });
    run([this] {
        type(title(), "Other");
        QTest::keyClick(&title(), Qt::Key_Escape);
        EXPECT_FALSE(isOpen());
    });
    expectNothingStored();
}

TEST_F(PageSettingDialog, ApplyStoresStaysOpenAndIsDisabledUntilTheNextChange) {
    run([this] {
        type(title(), "First");
        ASSERT_TRUE(canApply());
        press("cmdApply");
        EXPECT_TRUE(isOpen());
        EXPECT_FALSE(canApply());
        EXPECT_EQ(stored(Setting::PageTitle), "First");
        EXPECT_EQ(stored(Setting::PageType), "1");
        type(title(), "Second");
        EXPECT_TRUE(canApply());
        press("cmdCancel");
    });
    EXPECT_EQ(stored(Setting::PageTitle), "First") << "what was applied stays";
}

TEST_F(PageSettingDialog, EveryChangeEnablesApply) {
    shell.expectOpenDialog("Select picture", model("Symbols/set-1/sun.gif"));
    const std::pair<const char*, Steps> changes[] = {
        {"title", [this] { QTest::keyClicks(&title(), "x"); }},
        {"file name", [this] { QTest::keyClicks(&filename(), "x"); }},
        {"picture typed", [this] { QTest::keyClicks(&backFile(), "x"); }},
        {"picture chosen", [this] { press("cmdBrowse"); }},
        {"picture cleared", [this] { press("cmdClear"); }},
        {"colour", [this] { QTest::keyClick(&backcolor(), Qt::Key_Down); }},
        {"effect", [this] { QTest::keyClick(&effects(), Qt::Key_Up); }},
        {"text", [this] { QTest::keyClick(&showText(), Qt::Key_Space); }},
        {"type", [this] { QTest::mouseClick(&type(1), Qt::LeftButton); }},
        {"seconds", [this] { QTest::keyClick(&spin(), Qt::Key_Up); }},
    };
    settings.set(Setting::PageType, "3");
    settings.set(Setting::PageBackpicture, "\\old.gif");
    for (const auto& [name, change] : changes) {
        run([this, name = name, change = change] {
            ASSERT_FALSE(canApply()) << name;
            change();
            EXPECT_TRUE(canApply()) << name;
        });
    }
}

TEST_F(PageSettingDialog, AFileNameWithAPagesExtensionIsRefusedAndNothingIsStored) {
    for (const char* name :
         {"Forecast.HTM", " forecast.html ", "a.htm", ".html", "a.b.HtMl", "folder/x.htm  "}) {
        for (const char* command : {"cmdOK", "cmdApply"}) {
            run([&] {
                type(filename(), name);
                title().setFocus();
                expectRefusal();
                press(command);
                EXPECT_TRUE(isOpen()) << name;
                EXPECT_TRUE(canApply()) << name;
                EXPECT_TRUE(filename().hasFocus()) << name;
                EXPECT_EQ(filename().selectedText(), name);
            });
        }
    }
    expectNothingStored();
}

TEST_F(PageSettingDialog, AnyOtherFileNameIsTakenAsTyped) {
    for (const char* name :
         {"forecast.ht", "htm", "html", "a.htm.x", "a.htmlx", "", "  ", "x?y", "..", "a/b"}) {
        run([&] {
            type(filename(), name);
            press("cmdOK");
            EXPECT_FALSE(isOpen()) << name;
        });
        EXPECT_EQ(stored(Setting::PageFilename), name);
    }
}

TEST_F(PageSettingDialog, BrowseAsksForAPictureInTheProgramFolder) {
    shell.expectOpenDialog("Select picture", model("Symbols/set-1/sun.gif"));
    run([this] {
        press("cmdBrowse");
        EXPECT_EQ(shell.lastFileRequest.folder, workspace.folder.path());
        EXPECT_EQ(shell.lastFileRequest.filter,
                  "All picture files |*.gif;*.jpg;*.jpeg;|gif (*.gif)|*.gif|jpg (*.jpg)|*.jpg|"
                  "jpeg (*.jpeg)|*.jpeg|");
        EXPECT_EQ(backFile().text(), host("Symbols/set-1/sun.gif"));
        EXPECT_EQ(backFile().selectedText(), backFile().text());
        EXPECT_TRUE(backFile().hasFocus());
        EXPECT_EQ(shell.pointer, Pointer::Default);
        press("cmdOK");
    });
    EXPECT_EQ(stored(Setting::PageBackpicture), model("Symbols/set-1/sun.gif"));
}

TEST_F(PageSettingDialog, BrowseCancelledOrForAFileThatIsGoneChangesNothing) {
    settings.set(Setting::PageBackpicture, "\\old.gif");
    for (const QString& chosen : {QString(), model("no-such.gif")}) {
        shell.expectOpenDialog("Select picture", chosen);
        run([this] {
            press("cmdBrowse");
            EXPECT_EQ(backFile().text(), "/old.gif");
            EXPECT_FALSE(canApply());
        });
    }
}

TEST_F(PageSettingDialog, ClearEmptiesThePicture) {
    settings.set(Setting::PageBackpicture, "\\old.gif");
    run([this] {
        press("cmdClear");
        EXPECT_EQ(backFile().text(), "");
        press("cmdApply");
    });
    EXPECT_EQ(stored(Setting::PageBackpicture), "");
}

TEST_F(PageSettingDialog, APictureOfAnotherSystemKeepsItsPathWhenTheRestIsStored) {
    settings.set(Setting::PageBackpicture, "C:\\Pictures\\clouds.jpg");
    run([this] { press("cmdOK"); });
    EXPECT_EQ(stored(Setting::PageBackpicture), "C:\\Pictures\\clouds.jpg");
}

TEST_F(PageSettingDialog, ChoosingATypeSetsWhetherTheSecondsCanBeChanged) {
    run([this] {
        const auto expectTimer = [this](bool enabled) {
            EXPECT_EQ(time().isEnabled(), enabled);
            EXPECT_EQ(spin().isEnabled(), enabled);
            EXPECT_EQ(find<QLabel>("lblTime").isEnabled(), enabled);
        };
        expectTimer(false);
        QTest::mouseClick(&type(2), Qt::LeftButton);
        EXPECT_EQ(checkedType(), 2);
        expectTimer(true);
        QTest::mouseClick(&type(1), Qt::LeftButton);
        EXPECT_EQ(checkedType(), 1);
        expectTimer(false);
        QTest::mouseClick(&type(2), Qt::LeftButton);
        QTest::mouseClick(&type(0), Qt::LeftButton);
        EXPECT_EQ(checkedType(), 0);
        expectTimer(false);
    });
}

TEST_F(PageSettingDialog, TheSecondsStepFromOneToTen) {
    settings.set(Setting::PageType, "3");
    settings.set(Setting::PageTimer, "9");
    run([this] {
        for (const char* shown : {"10", "10"}) {
            QTest::keyClick(&spin(), Qt::Key_Up);
            EXPECT_EQ(time().text(), shown);
        }
        for (int i = 0; i < 12; ++i) {
            QTest::keyClick(&spin(), Qt::Key_Down);
        }
        EXPECT_EQ(time().text(), "1");
        press("cmdOK");
    });
    EXPECT_EQ(stored(Setting::PageTimer), "1");
}

TEST_F(PageSettingDialog, SecondsCanBeTypedAsFarAsTheyAreInTheRange) {
    settings.set(Setting::PageType, "3");
    for (const auto& [typed, value] :
         {std::pair("6", "6"), std::pair("10", "10"), std::pair("99", "9"), std::pair("x7", "7")}) {
        run([this, typed = typed] {
            type(time(), typed);
            press("cmdOK");
        });
        EXPECT_EQ(stored(Setting::PageTimer), value) << typed;
    }
}

TEST_F(PageSettingDialog, ATextBoxSelectsItsWholeTextWhenItTakesTheFocus) {
    settings.set(Setting::PageType, "3");
    settings.set(Setting::PageBackpicture, "\\old.gif");
    run([this] {
        EXPECT_TRUE(title().hasFocus());
        EXPECT_EQ(title().selectedText(), "Forecast");
        for (QLineEdit* box : {&filename(), &backFile(), &time(), &title()}) {
            QTest::mouseClick(box, Qt::LeftButton, {}, {4, box->height() / 2});
            QCoreApplication::processEvents();
            EXPECT_EQ(box->selectedText(), box->text()) << box->objectName().toStdString();
        }
        QTest::keyClick(&title(), Qt::Key_Tab);
        QCoreApplication::processEvents();
        EXPECT_TRUE(filename().hasFocus());
        EXPECT_EQ(filename().selectedText(), "Forecast");
        // A second click puts the cursor where it is wanted.
        QTest::mouseClick(&filename(), Qt::LeftButton, {}, {4, filename().height() / 2});
        QCoreApplication::processEvents();
        EXPECT_EQ(filename().selectedText(), "");
    });
}

TEST_F(PageSettingDialog, HelpOpensItsTopic) {
    run([this] {
        press("cmdHelp");
        EXPECT_TRUE(isOpen());
    });
    EXPECT_EQ(topics, QStringList("PageSettings.htm"));
}

TEST_F(PageSettingDialog, OkIsTheDefaultButton) {
    run([this] {
        EXPECT_TRUE(button("cmdOK").isDefault());
        QTest::keyClick(&filename(), Qt::Key_Return);
        EXPECT_FALSE(isOpen());
    });
}

TEST_F(PageSettingDialog, TheTabKeyWalksAsTheEyeDoes) {
    settings.set(Setting::PageType, "3");
    run([this] {
        title().setText("Changed");  // enables cmdApply
        QStringList names;
        QWidget* first = QApplication::focusWidget();
        for (QWidget* focus = first; names.size() < 30; focus = QApplication::focusWidget()) {
            names << focus->objectName();
            QTest::keyClick(focus, Qt::Key_Tab);
            if (QApplication::focusWidget() == first) {
                break;
            }
        }
        EXPECT_EQ(names, QStringList({"txtHTMLtitle", "txtHTMLfilename", "cboBackcolor",
                                      "txtBackFile", "cmdBrowse", "cmdClear", "chkShowText",
                                      "optHtmlType2", "scrollTimer", "cboEffects", "cmdOK",
                                      "cmdCancel", "cmdApply", "cmdHelp"}));
    });
}

TEST_F(PageSettingDialog, TheResponsivePageHasOptionsOfItsOwn) {
    run([this] {
        for (const char* name : {"cboLanguage", "cboTheme", "cboPlay"}) {
            EXPECT_FALSE(find<QComboBox>(name).isEnabled()) << name;
        }
        QTest::mouseClick(&type(4), Qt::LeftButton, {}, {8, type(4).height() / 2});
        EXPECT_EQ(checkedType(), 4);
        EXPECT_TRUE(spin().isEnabled()) << "its play button has the same pace";
        QComboBox& language = find<QComboBox>("cboLanguage");
        EXPECT_TRUE(language.isEnabled());
        EXPECT_EQ(language.currentIndex(), 0);
        language.setCurrentText("Italiano");
        find<QComboBox>("cboTheme").setCurrentIndex(2);
        find<QComboBox>("cboPlay").setCurrentIndex(0);
        QTest::mouseClick(&button("cmdOK"), Qt::LeftButton);
    });
    EXPECT_EQ(settings.text(Setting::PageType), "5");
    EXPECT_EQ(settings.text(Setting::PageLanguage), "it");
    EXPECT_EQ(settings.text(Setting::PageTheme), "2");
    EXPECT_EQ(settings.text(Setting::PagePlay), "0");
    const PageSettings page = PageSettings::read(settings);
    EXPECT_EQ(page.theme, PageTheme::Dark);
    EXPECT_EQ(page.play, PagePlay::None);
}

TEST_F(PageSettingDialog, OptionsOfTheResponsivePageComeBack) {
    settings.set(Setting::PageType, "5");
    settings.set(Setting::PageLanguage, "de-CH");
    settings.set(Setting::PageTheme, "1");
    settings.set(Setting::PagePlay, "9");
    run([this] {
        EXPECT_EQ(checkedType(), 4);
        EXPECT_EQ(find<QComboBox>("cboLanguage").currentText(), "de-CH");
        EXPECT_EQ(find<QComboBox>("cboTheme").currentIndex(), 1);
        EXPECT_EQ(find<QComboBox>("cboPlay").currentIndex(), 1);
        EXPECT_FALSE(button("cmdApply").isEnabled());
        find<QComboBox>("cboTheme").setCurrentIndex(0);
        EXPECT_TRUE(button("cmdApply").isEnabled());
    });
}

TEST_F(PageSettingDialog, ArrowKeysGoFromTypeToType) {
    run([this] {
        type(0).setFocus();
        QTest::keyClick(&type(0), Qt::Key_Down);
        EXPECT_EQ(checkedType(), 2);
        EXPECT_TRUE(type(2).hasFocus());
        QTest::keyClick(&type(2), Qt::Key_Down);
        EXPECT_EQ(checkedType(), 1);
        EXPECT_TRUE(type(1).hasFocus());
    });
}

TEST_F(PageSettingDialog, NoTwoControlsShareAnAccessKey) {
    run([this] {
        QStringList keys;
        const auto note = [&keys](const QString& caption) {
            const qsizetype at = caption.indexOf(u'&');
            if (at >= 0) {
                keys << caption.mid(at + 1, 1).toUpper();
            }
        };
        for (const QAbstractButton* control : dialog_->findChildren<QAbstractButton*>()) {
            note(control->text());
        }
        for (const QLabel* label : dialog_->findChildren<QLabel*>()) {
            note(label->text());
        }
        EXPECT_GT(keys.size(), 12);
        EXPECT_EQ(keys.removeDuplicates(), 0);
    });
}

TEST_F(PageSettingDialog, EveryControlThatTakesTheFocusHasAName) {
    run([this] {
        int seen = 0;
        for (QWidget* widget : dialog_->findChildren<QWidget*>()) {
            if (widget->focusPolicy() == Qt::NoFocus || widget->focusProxy() ||
                !widget->isVisible()) {
                continue;
            }
            ++seen;
            QAccessibleInterface* face = QAccessible::queryAccessibleInterface(widget);
            ASSERT_NE(face, nullptr);
            EXPECT_FALSE(face->text(QAccessible::Name).isEmpty())
                << widget->objectName().toStdString();
        }
        EXPECT_GE(seen, 16);
    });
}

}  // namespace nubivane
