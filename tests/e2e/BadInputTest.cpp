// Files and folders that a person may come upon: each is told of clearly, nothing is harmed, and
// the window goes on.
#include <linux/capability.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <QLineEdit>
#include <QToolButton>
#include <fstream>
#include <random>

#include "Journey.h"
#include "qt/QtText.h"

namespace ladrix::test {
namespace {

constexpr std::uintmax_t OverLimit = 65u << 20;

struct BadInputTest : testing::Test {
    // Whether the window still draws and saves.
    void expectUsable() {
        const Short before = journey.editor().drawing.devices.DeviceCount;
        journey.press("Square");
        journey.clickPage(1, 1);
        journey.clickPage(3, 3);
        Journey::key(Qt::Key_Escape);
        EXPECT_EQ(journey.editor().drawing.devices.DeviceCount, before + 1);
        journey.saveInBrowser("Afterwards");
        Journey::key(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
        EXPECT_TRUE(journey.title().ends_with("Afterwards.els")) << journey.title();
        EXPECT_TRUE(home.disk().has(Home::drawing("Afterwards.els")));
    }
    void drawSquare() {
        journey.press("Square");
        journey.clickPage(4, 1);
        journey.clickPage(5, 3);
        Journey::key(Qt::Key_Escape);
    }
    void openExpecting(const std::string& name, const std::vector<std::string>& boxes) {
        journey.openInBrowser(name);
        for (const std::string& text : boxes)
            journey.expectBox(text, QMessageBox::Ok);
        Journey::key(Qt::Key_O, Qt::ControlModifier);
        EXPECT_EQ(journey.dialogsLeft(), 0u);
    }

    Home home;
    Journey journey{home};
};

TEST_F(BadInputTest, NoiseInTheShapeOfADrawingIsToldOf) {
    std::mt19937 random(11);
    std::string noise = "8.5x11Portrait\r\n\r\n";
    for (int i = 0; i < 20000; ++i)
        noise += random() % 12 == 0  ? std::string("\r\n")
                 : random() % 4 == 0 ? std::string("\xFF")
                                     : std::string(1, static_cast<char>(' ' + random() % 90));
    home.disk().write(Home::drawing("Shaped.els"), noise);
    openExpecting("Shaped.els", {"File structure corrupted and cannot be read.",
                                 "Parse Device String", "Parse Label String"});
    EXPECT_TRUE(journey.title().ends_with("Untitled")) << journey.title();
    EXPECT_EQ(home.disk().read(Home::drawing("Shaped.els")), noise);
    expectUsable();
}

TEST_F(BadInputTest, AFileBeyondAllDrawingsIsRefusedWithItsLimit) {
    home.disk().write(Home::drawing("Huge.els"), "8.5x11Portrait\r\n\r\n");
    std::filesystem::resize_file(home.disk().native(Home::drawing("Huge.els")), OverLimit);
    openExpecting("Huge.els",
                  {"File structure corrupted and cannot be read.", "Huge.els: Larger than 64 MiB"});
    EXPECT_TRUE(journey.title().ends_with("Untitled")) << journey.title();
    EXPECT_EQ(std::filesystem::file_size(home.disk().native(Home::drawing("Huge.els"))), OverLimit);
    expectUsable();
}

TEST_F(BadInputTest, AFolderNamedAsADrawingIsEnteredAndNeverReplaced) {
    home.disk().write(Home::drawing("Folder.els/inside.els"), "8.5x11Portrait\r\n\r\n\r\n");
    journey.expectDialog([](QWidget& browser) {
        Journey::clickRow(browser, "Folder.els");
        Journey::click(Journey::named(browser, "cmdOpenOK"));
        Journey::clickRow(browser, "inside.els");
        Journey::click(Journey::named(browser, "cmdOpenCancel"));
    });
    Journey::key(Qt::Key_O, Qt::ControlModifier);

    drawSquare();
    journey.expectDialog([](QWidget& browser) {
        Journey::click(Journey::named(browser, "txtSaveAs"));
        Journey::type("Folder");
        Journey::key(Qt::Key_Return);
        EXPECT_TRUE(browser.isVisible()) << "another name may be tried";
        Journey::key(Qt::Key_Escape);
    });
    journey.expectBox("Is a directory", QMessageBox::Ok);
    Journey::key(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(home.disk().entries(Home::drawing("Folder.els")),
              std::vector<std::string>{"inside.els"});
    EXPECT_TRUE(journey.editor().drawing.DrawingChanged);
    EXPECT_TRUE(journey.title().ends_with("Untitled")) << journey.title();
    expectUsable();
}

// While it lives, the superuser is bound by the modes of files like anybody else.
class OrdinaryRights {
  public:
    OrdinaryRights() {
        syscall(SYS_capget, &header_, former_);
        __user_cap_data_struct less[2] = {former_[0], former_[1]};
        less[0].effective &= ~((1u << CAP_DAC_OVERRIDE) | (1u << CAP_DAC_READ_SEARCH));
        syscall(SYS_capset, &header_, less);
    }
    ~OrdinaryRights() { syscall(SYS_capset, &header_, former_); }
    OrdinaryRights(const OrdinaryRights&) = delete;
    OrdinaryRights& operator=(const OrdinaryRights&) = delete;

  private:
    __user_cap_header_struct header_{_LINUX_CAPABILITY_VERSION_3, 0};
    __user_cap_data_struct former_[2] = {};
};

TEST_F(BadInputTest, AReadOnlyFolderTakesNoDrawingAndKeepsItsFiles) {
    const std::string folder = Home::drawing("Shelf");
    home.disk().write(folder + "/Old.els", "8.5x11Portrait\r\n\r\n\r\n");
    std::filesystem::permissions(home.disk().native(folder), std::filesystem::perms(0555));
    drawSquare();
    {
        const OrdinaryRights rights;
        ASSERT_FALSE(std::ofstream(home.disk().native(folder) / "probe")) << "still writable";
        journey.expectDialog([](QWidget& browser) {
            Journey::clickRow(browser, "Shelf");
            Journey::key(Qt::Key_Return);
            Journey::clickRow(browser, "Old.els");
            Journey::click(Journey::named(browser, "cmdSaveAs"));
            EXPECT_TRUE(browser.isVisible()) << "another folder may be tried";
            Journey::key(Qt::Key_Escape);
        });
        journey.expectBox("Old.els already exists.", QMessageBox::Yes);
        journey.expectBox("Old.els: Permission denied", QMessageBox::Ok);
        Journey::key(Qt::Key_S, Qt::ControlModifier);
    }
    EXPECT_EQ(home.disk().entries(folder), std::vector<std::string>{"Old.els"});
    EXPECT_EQ(home.disk().read(folder + "/Old.els"), "8.5x11Portrait\r\n\r\n\r\n");
    EXPECT_TRUE(journey.editor().drawing.DrawingChanged);
    std::filesystem::permissions(home.disk().native(folder), std::filesystem::perms(0755));
    home.disk().write(folder + "/Old.els", "");
    std::filesystem::remove_all(home.disk().native(folder));
    expectUsable();
}

}  // namespace
}  // namespace ladrix::test
