#include "bills/company_data.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "runtime/file_names.h"
#include "tests/support/own_directory.h"

namespace tarn::test {
namespace {

namespace fs = std::filesystem;

class BillPicturesTest : public testing::Test {
protected:
    void save(const char* name, const std::string& bytes) const {
        std::ofstream(folder_ / name, std::ios::binary) << bytes;
    }

    OwnDirectory own_{u8"figuras à mão"};
    const fs::path& folder_ = own_.path();
};

TEST_F(BillPicturesTest, EachHasItsFile) {
    save("LOGODUPL.jpg", std::string("l\0\n", 3));
    save("VERTDUPL.jpg", "v");
    save("ASSEMITENTE.jpg", "a");
    for (const std::string& folder : {nameOf(folder_), nameOf(folder_) + "/"}) {
        const BillPictures pictures = loadPictures(folder);
        EXPECT_EQ(pictures.picLogo, Picture("picLogo", std::string("l\0\n", 3)));
        EXPECT_EQ(pictures.picVert, Picture("picVert", "v"));
        EXPECT_EQ(pictures.picAss, Picture("picAss", "a"));
    }
}

TEST_F(BillPicturesTest, WithoutAReadableFileThereIsNone) {
    fs::create_directory(folder_ / "LOGODUPL.jpg");
    save("VERTDUPL.jpg", "");
#ifndef _WIN32  // whose names have no case
    save("assemitente.jpg", "a");
#endif
    for (const std::string& folder : {nameOf(folder_), nameOf(folder_) + "/falta", std::string()}) {
        const BillPictures pictures = loadPictures(folder);
        EXPECT_EQ(pictures.picLogo, std::nullopt);
        EXPECT_EQ(pictures.picVert, std::nullopt);
        EXPECT_EQ(pictures.picAss, std::nullopt);
    }
}

}  // namespace
}  // namespace tarn::test
