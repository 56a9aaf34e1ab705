// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/commands/desktop_printer.h"

#include "engine/core/error.h"
#include "engine/picture/made_pictures.h"
#include "support/dialog_parts.h"
#include "support/fixtures.h"
#include "support/processes.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QPrintDialog>
#include <QPushButton>
#include <QTimer>

namespace nubivane {

using namespace testing;

namespace {

/// The desktop's own set-up, by which the pages go into a file: whatever printers there are,
/// nothing comes out of one.
class DesktopPrinting : public ::testing::Test {
  protected:
    /// Opens the set-up and leaves it with a file chosen, or by Escape when there is no name.
    void setUp(const QString& file) {
        QTimer::singleShot(0, qApp, [&] {
            auto* dialog = qobject_cast<QPrintDialog*>(QApplication::activeModalWidget());
            ASSERT_TRUE(dialog);
            EXPECT_EQ(dialog->windowTitle(), "Print setup");
            auto* printers = part<QComboBox>(*dialog, "printers");
            printers->setCurrentIndex(printers->findText("Print to File (PDF)"));
            chosenBefore = part<QLineEdit>(*dialog, "filename")->text();
            if (file.isEmpty()) {
                QTest::keyClick(dialog, Qt::Key_Escape);
                return;
            }
            part<QLineEdit>(*dialog, "filename")->setText(file);
            QTest::mouseClick(dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok),
                              Qt::LeftButton);
        });
        printer.setUp(nullptr);
    }

    /// What the file says of its first picture: ..., width, height, ..., x-ppi, y-ppi, ...
    static QStringList listed(const QString& file) {
        const ProcessResult result = runProgram("pdfimages", {"-list", file});
        EXPECT_EQ(result.exitCode, 0) << result.err.toStdString();
        return QString::fromUtf8(result.out).split(u'\n').value(2).simplified().split(u' ');
    }

    TemporaryFolder temporary;
    DesktopPrinter printer;
    QString chosenBefore;
};

}  // namespace

TEST_F(DesktopPrinting, GoesWhereTheSetUpSaysForTheRestOfTheRun) {
    const QString file = temporary.file("map.pdf");
    setUp(file);
    EXPECT_TRUE(chosenBefore.endsWith("/Nubivane.pdf")) << chosenBefore.toStdString();
    EXPECT_FALSE(QFile::exists(file));
    printer.print(shaded({300, 200}), "map");
    EXPECT_EQ(listed(file).value(3), "300");
    EXPECT_EQ(listed(file).value(4), "200");
    EXPECT_EQ(listed(file).value(12), "96");
    printer.print(shaded({150, 100}), "map");
    EXPECT_EQ(listed(file).value(3), "150");
    setUp({});
    EXPECT_EQ(chosenBefore, file);
    printer.print(shaded({120, 100}), "map");
    EXPECT_EQ(listed(file).value(3), "120");
}

TEST_F(DesktopPrinting, TheFileHasTheJobsTitleAndALanguage) {
    const QString file = temporary.file("map.pdf");
    setUp(file);
    printer.print(shaded({30, 20}), "week: Monday");
    const ProcessResult info = runProgram("pdfinfo", {file});
    EXPECT_EQ(info.exitCode, 0) << info.err.toStdString();
    EXPECT_EQ(info.err, "");
    EXPECT_TRUE(info.out.contains("week: Monday\n")) << info.out.toStdString();
    EXPECT_TRUE(readFile(file).contains("/Lang ("));
    EXPECT_EQ(listed(file).value(3), "30");
}

TEST_F(DesktopPrinting, AFolderThatIsGoneIsTold) {
    QDir().mkpath(temporary.file("there"));
    setUp(temporary.file("there/map.pdf"));
    QDir().rmdir(temporary.file("there"));
    EXPECT_THROW(printer.print(shaded({30, 20}), "map"), Error);
}

TEST_F(DesktopPrinting, AfterAFailureTheSetUpHelpsAtOnce) {
    QDir().mkpath(temporary.file("there"));
    setUp(temporary.file("there/map.pdf"));
    QDir().rmdir(temporary.file("there"));
    EXPECT_THROW(printer.print(shaded({30, 20}), "map"), Error);
    EXPECT_THROW(printer.print(shaded({30, 20}), "map"), Error);
    const QString file = temporary.file("other.pdf");
    setUp(file);
    printer.print(shaded({300, 200}), "map");
    EXPECT_EQ(listed(file).value(3), "300");
    QDir().mkpath(temporary.file("there"));
    setUp(temporary.file("there/map.pdf"));
    printer.print(shaded({120, 100}), "map");
    EXPECT_EQ(listed(temporary.file("there/map.pdf")).value(3), "120");
}

}  // namespace nubivane
