// The machine's own parts: boxes, the lock of the only instance, the timers.
#include <gtest/gtest.h>

#include <QApplication>
#include <QBuffer>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>

#include "Driving.h"
#include "qt/QtPlatform.h"

namespace ladrix {
namespace {

// Acts on the modal box once it is up.
template <class Box, class Act>
void whenUp(Act act) {
    QTimer::singleShot(0, qApp, [act] {
        auto* box = qobject_cast<Box*>(QApplication::activeModalWidget());
        ASSERT_TRUE(box);
        act(*box);
    });
}

using test::press;

TEST(Dialogs, AMessageAnswersByItsButtonAndCancelByEscape) {
    QtDialogs dialogs;
    int shown = 0;
    dialogs.beforeModal = [&] { ++shown; };
    const auto answerTo = [&](Buttons buttons, QMessageBox::StandardButton button) {
        whenUp<QMessageBox>([button](QMessageBox& box) {
            EXPECT_EQ(box.text(), QString::fromUtf8("50 \xE2\x82\xAC <b>"));
            button == QMessageBox::NoButton ? press(box, Qt::Key_Escape)
                                            : box.button(button)->click();
        });
        return dialogs.message("50 \x80 <b>", "Title", buttons);
    };
    EXPECT_EQ(answerTo(Buttons::YesNoCancel, QMessageBox::Yes), Answer::Yes);
    EXPECT_EQ(answerTo(Buttons::YesNoCancel, QMessageBox::No), Answer::No);
    EXPECT_EQ(answerTo(Buttons::YesNoCancel, QMessageBox::NoButton), Answer::Cancel);
    EXPECT_EQ(answerTo(Buttons::YesNo, QMessageBox::Yes), Answer::Yes);
    EXPECT_EQ(answerTo(Buttons::OkCancel, QMessageBox::Ok), Answer::Ok);
    EXPECT_EQ(answerTo(Buttons::OkCancel, QMessageBox::NoButton), Answer::Cancel);
    EXPECT_EQ(answerTo(Buttons::Ok, QMessageBox::NoButton), Answer::Ok);
    EXPECT_EQ(shown, 7);
}

TEST(Dialogs, AnInputGivesItsTextOrNothing) {
    QtDialogs dialogs;
    whenUp<QDialog>([](QDialog& box) {
        auto& field = *box.findChild<QLineEdit*>();
        EXPECT_EQ(field.selectedText(), "0.25");
        field.insert(QString::fromUtf8("\xC3\xA9\t\xCE\xA9"));
        press(field, Qt::Key_Return, "\r");
    });
    EXPECT_EQ(dialogs.input("Enter Snap Below", "Adjusting Snap", "0.25"), "\xE9");
    whenUp<QDialog>([](QDialog& box) { press(box, Qt::Key_Escape); });
    EXPECT_EQ(dialogs.input("Enter Snap Below", "Adjusting Snap", "0.25"), std::nullopt);
}

TEST(Dialogs, AnUnattendedRunNeverWaits) {
    QtDialogs dialogs;
    dialogs.unattended = true;
    EXPECT_EQ(dialogs.message("Save?", "Title", Buttons::YesNoCancel), Answer::Cancel);
    EXPECT_EQ(dialogs.input("Name", "Title", "x"), std::nullopt);
    EXPECT_TRUE(dialogs.refused);
}

QImage imageOf(const std::shared_ptr<const Picture>& picture) {
    return dynamic_cast<const QtPicture&>(*picture).image().convertToFormat(QImage::Format_RGB32);
}

// The own reading of the plain form and the toolkit's of the others see the same pixels.
TEST(Bitmaps, OfEveryFormAndWidthKeepTheirPixels) {
    QtImages images;
    for (const int width : {1, 2, 3, 4, 25}) {
        QImage drawn(width, 3, QImage::Format_RGB32);
        for (int i = 0; i < width * 3; ++i)
            drawn.setPixel(i % width, i / width, qRgb(10 * i, 200 - 5 * i, i % 2 ? 255 : 0));
        std::string plain = images.bitmapText(QtPicture(drawn));
        EXPECT_EQ(imageOf(images.fromBitmap(plain)), drawn) << width;
        for (std::size_t length = 0; length < 54; ++length)  // within its headers
            EXPECT_THROW(images.fromBitmap(plain.substr(0, length)), Failure) << length;
        const std::string cut = plain.substr(0, plain.size() - 1);
        EXPECT_EQ(imageOf(images.fromBitmap(cut)).size(), drawn.size()) << "what there is of it";
        QByteArray indexed;
        QBuffer buffer(&indexed);
        drawn.convertToFormat(QImage::Format_Mono).save(&buffer, "BMP");
        const QImage read = imageOf(images.fromBitmap(indexed.toStdString()));
        EXPECT_EQ(read.size(), drawn.size());
        plain.replace(22, 4, "\xff\xff\xff\x7f");  // a height far beyond the file
        EXPECT_THROW(images.fromBitmap(plain), Failure);
    }
}

TEST(Shell, LetsOnlyOneInstanceRun) {
    DiskFiles files;
    QTemporaryDir runtime;
    const QByteArray former = qgetenv("XDG_RUNTIME_DIR");
    qputenv("XDG_RUNTIME_DIR", runtime.path().toLocal8Bit());
    {
        QtShell first{files}, second{files};
        EXPECT_TRUE(first.onlyInstance());
        EXPECT_FALSE(second.onlyInstance());
    }
    QtShell later{files};
    EXPECT_TRUE(later.onlyInstance());
    qputenv("XDG_RUNTIME_DIR", former);
}

TEST(QtTimers, CallBackOnceAndMayBeStartedAnewFromTheCall) {
    QtTimers timers;
    int calls = 0, refreshes = 0, stopped = 0;
    timers.afterExpiry = [&] { ++refreshes; };
    timers.start(1, 1, [&] {
        if (++calls == 1) timers.start(1, 1, [&] { calls += 10; });
    });
    timers.start(2, 1, [&] { ++stopped; });
    timers.stop(2);
    QElapsedTimer clock;
    clock.start();
    while (calls < 11 && clock.elapsed() < 5000)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 20);
    EXPECT_EQ(calls, 11);
    EXPECT_EQ(refreshes, 2);
    EXPECT_EQ(stopped, 0);
}

}  // namespace
}  // namespace ladrix
