#include "dictd_file.h"
#include "platform/failure/runtime_error.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <zlib.h>

namespace
{

using namespace Qt::StringLiterals;

class DictdFile : public testing::Test
{
protected:
    QString Base() const { return m_folder.filePath(u"dict"_s); }
    void Write(const QByteArray &content, const QByteArray &index) const
    {
        gzFile compressed = gzopen(qPrintable(Base() + u".dict.dz"_s), "wb");
        ASSERT_NE(compressed, nullptr);
        ASSERT_EQ(gzwrite(compressed, content.constData(), static_cast<unsigned>(content.size())),
                  content.size());
        gzclose(compressed);
        QFile file(Base() + u".index"_s);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(index);
    }
    qint32 Raised() const
    {
        try {
            sample::ReadDictd(Base());
        } catch (const RuntimeError &error) {
            return error.number();
        }
        return 0;
    }

private:
    QTemporaryDir m_folder;
};

TEST(DictdNumber, ReadsDigitsOf64)
{
    struct {
        const char *digits;
        qint64 number;
    } const table[] = {{"A", 0},         {"B", 1}, {"/", 63},  {"BA", 64},         {"NZku", 3512622},
                       {"CMRD", 574531}, {"", -1}, {"B-", -1}, {"AAAAAAAAAAA", -1}};
    for (const auto &row : table)
        EXPECT_EQ(sample::DictdNumber(row.digits), row.number) << row.digits;
}

TEST_F(DictdFile, GivesEachEntryOnceInTheOrderOfTheFile)
{
    Write("infocatdog", "00databaseinfo\tA\tE\ndog\tH\tD\ncat\tE\tD\nchat\tE\tD\n\n");
    EXPECT_EQ(sample::ReadDictd(Base()), (QList<QByteArray>{"cat", "dog"}));
}

TEST_F(DictdFile, RefusesWhatIsMissingOrDamaged)
{
    EXPECT_EQ(Raised(), RuntimeError::FileNotFound);
    Write("cat", "cat\tA\tE\n");
    EXPECT_EQ(Raised(), RuntimeError::DeviceIoError);
    Write("cat", "cat\tZ\tA\n");
    EXPECT_EQ(Raised(), RuntimeError::DeviceIoError);
    Write("cat", "cat\t!\tA\n");
    EXPECT_EQ(Raised(), RuntimeError::DeviceIoError);
    Write("cat", "cat\tA\tD\n");
    EXPECT_EQ(Raised(), 0);
}

} // namespace
