// Job files of the user's choice.
#include "printer/intake/job_files.h"

#include <QFile>
#include <QTemporaryDir>

#include "tests/printer/intake.h"

namespace tarn::test {

using namespace dotmatrix;
namespace {

TEST_F(Intake, AChosenFileLiesOnThePaperThatIsToldBesideIt) {
    const QTemporaryDir folder;
    const auto write = [&folder](const QString& name, const QByteArray& bytes) {
        QFile file(folder.filePath(name));
        return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
    };
    ASSERT_TRUE(write("cópia.prn", "um\r\n"));
    ASSERT_TRUE(write("cópia.kind", "documento cheque\nformulario Cheque\n"));
    JobFiles files(intake_, nullptr);
    files.add({folder.filePath("cópia.prn")});
    ASSERT_TRUE(waitForJobs(1));
    EXPECT_EQ(ended_[0].remark, "");
    ASSERT_NE(roll_.jobs().back().paper.form, nullptr);
    EXPECT_EQ(roll_.jobs().back().paper.form->name, "Cheque");
}

#ifdef Q_OS_LINUX
// It opens, and no byte of its beginning can be read.
TEST_F(Intake, AChosenFileThatCannotBeReadIsTold) {
    JobFiles files(intake_, nullptr);
    files.add({"/proc/self/mem"});
    ASSERT_TRUE(waitForJobs(1));
    EXPECT_TRUE(ended_[0].remark.startsWith("não foi possível ler o arquivo ("))
        << ended_[0].remark.toStdString();
}
#endif

}  // namespace
}  // namespace tarn::test
