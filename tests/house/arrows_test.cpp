// The rooms of the house include one another only as src/rooms.txt has it.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>

#include "tests/house/rooms.h"
#include "tests/house/source_text.h"
#include "tests/house/source_tree.h"
#include "tests/support/files.h"
#include "tests/support/texts.h"

namespace tarn::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

constexpr char threeRooms[] = R"(
# lowest first
runtime     no-qt:
notes       no-qt:   runtime
notes/qt    qt:      notes runtime
bills       screens: notes runtime   # documents and screens
)";

Rooms table(std::string_view text = threeRooms) {
    Complaints complaints;
    Rooms rooms = readRooms(text, complaints);
    EXPECT_EQ(complaints, Texts{});
    return rooms;
}

Complaints faults(std::string_view path, std::string_view cpp) {
    return faultsOfFile(table(), path, takeApart(cpp));
}

TEST(Arrows, OfTheTableAreFree) {
    EXPECT_EQ(faultsOfTable(table()), Texts{});
    EXPECT_EQ(faults("src/notes/a.cpp",
                     "#include \"notes/a.h\"\n#include \"own.h\"\n#include <vector>\n"
                     "#  include \"runtime/mask.h\"\n"),
              Texts{});
    EXPECT_EQ(faults("src/notes/layouts/b.cpp", "#include \"notes/a.h\"\n"), Texts{});
    EXPECT_EQ(faults("src/notes/a.cpp", "// #include \"bills/a.h\"\n"), Texts{});
}

TEST(Arrows, ANewOneIsAFault) {
    EXPECT_EQ(faults("src/notes/a.cpp", "\n#include \"bills/a.h\"\n"),
              (Texts{"src/notes/a.cpp:2: notes -> bills (bills/a.h)"}));
    EXPECT_EQ(faults("src/bills/a.cpp", "#include \"notes/qt/a.h\"\n"),
              (Texts{"src/bills/a.cpp:1: bills -> notes/qt (notes/qt/a.h)"}));
}

TEST(Arrows, AnUnknownRoomIsAFault) {
    EXPECT_EQ(faults("src/attic/a.cpp", ""),
              (Texts{"src/attic/a.cpp: its room isn't in the table"}));
    EXPECT_EQ(faults("src/notes/a.cpp", "#include \"attic/a.h\"\n"),
              (Texts{"src/notes/a.cpp:1: attic/a.h is in no room of the table"}));
    EXPECT_EQ(faultsOfTable(table("notes no-qt: attic\n")),
              (Texts{"notes may include attic, which is no room"}));
}

TEST(Arrows, ACycleInTheTableIsAFault) {
    EXPECT_EQ(faultsOfTable(table("a no-qt: b\nb no-qt: c\nc no-qt: a\n")),
              (Texts{"cycle of rooms: a -> b -> c -> a"}));
    EXPECT_EQ(faultsOfTable(table("a no-qt: a\n")), (Texts{"cycle of rooms: a -> a"}));
}

TEST(Arrows, QtStandsWhereTheTableHasIt) {
    EXPECT_EQ(faults("src/notes/a.cpp", "#include <QString>\n"),
              (Texts{"src/notes/a.cpp:1: no Qt here: QString"}));
    EXPECT_THAT(faults("src/bills/page.cpp", "#include <QtWidgets/QLabel>\n"),
                ElementsAre(HasSubstr("no Qt here")));
    EXPECT_THAT(faults("src/bills/page.cpp", "#include \"ui_frm_bills.h\"\n"),
                ElementsAre(HasSubstr("no Qt here")));
    EXPECT_EQ(faults("src/bills/frm_bills.cpp", "#include <QLabel>\n"), Texts{});
    EXPECT_THAT(faults("src/bills/bill_model.h", "#include <QAbstractTableModel>\n"),
                ElementsAre(HasSubstr("no Qt here")));
    EXPECT_EQ(faults("src/notes/qt/a.cpp", "#include <QString>\n"), Texts{});
}

TEST(Arrows, ALineThatCantBeReadIsAFault) {
    Complaints complaints;
    readRooms("runtime\nnotes sometimes: runtime\nbills qt:\nbills qt:\n", complaints);
    EXPECT_EQ(complaints, (Texts{"not a line of the table of rooms: runtime",
                                 "not a line of the table of rooms: notes sometimes: runtime",
                                 "a room twice in the table: bills"}));
}

TEST(Arrows, OfTheSourcesAreThoseOfTheTable) {
    const std::filesystem::path root(TARN_SOURCE_DIR);
    Complaints complaints;
    const Rooms rooms = readRooms(contentOf(root / "src/rooms.txt"), complaints);
    ASSERT_EQ(complaints, Texts{});
    ASSERT_GT(rooms.size(), 15U);
    complaints = faultsOfTable(rooms);
    std::size_t read = 0;
    for (const std::string& path :
         filesIn(root, std::array<std::string_view, 3>{"src", "apps", "practice"})) {
        if (isCpp(path)) {
            ++read;
            const Complaints more = faultsOfFile(rooms, path, takeApart(contentOf(root / path)));
            complaints.insert(complaints.end(), more.begin(), more.end());
        }
    }
    EXPECT_GT(read, 300U);
    std::string listing;
    for (const std::string& complaint : complaints) {
        listing += complaint + "\n";
    }
    EXPECT_TRUE(listing.empty()) << "Arrows that src/rooms.txt doesn't have:\n" << listing;
}

}  // namespace
}  // namespace tarn::test
