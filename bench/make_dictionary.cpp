#include "dictionary_generator.h"

#include "platform/failure/runtime_error.h"

#include <QFileInfo>
#include <QString>
#include <cstdio>

using namespace Qt::StringLiterals;

int main(int argc, char **argv)
{
    const bool isRandom = argc == 4 && QString::fromLocal8Bit(argv[3]) == u"--random"_s;
    bool isNumber = false;
    const uint count = argc >= 3 ? QString::fromLocal8Bit(argv[1]).toUInt(&isNumber) : 0;
    if (!isNumber || count == 0 || (argc != 3 && !isRandom)) {
        std::fputs("usage: wordmere_make_dictionary N PATH [--random]\n", stderr);
        return 2;
    }
    try {
        bench::MakeDictionary(QFileInfo(QString::fromLocal8Bit(argv[2])).absoluteFilePath(), count,
                              isRandom ? bench::RowOrder::Random : bench::RowOrder::Sorted);
    } catch (const RuntimeError &failure) {
        std::fprintf(stderr, "%s\n", failure.what());
        return 1;
    }
    return 0;
}
