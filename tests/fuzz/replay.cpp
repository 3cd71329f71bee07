#include "tests/fuzz/fuzzing.h"

#include <QDir>
#include <QFile>

#include <cstdio>

/// Runs a fuzz target over the files of a directory: the known inputs, among them every one that once failed.
int main(int argc, char **argv)
{
    const QDir directory(QFile::decodeName(argc == 2 ? argv[1] : ""));
    const QStringList names = directory.entryList(QDir::Files);
    for (const QString &name : names) {
        QFile file(directory.filePath(name));
        if (!file.open(QIODevice::ReadOnly))
            return 1;
        const QByteArray input = file.readAll();
        std::printf("%s\n", qPrintable(name));
        std::fflush(stdout); // names the culprit when the next line ends the process
        LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t *>(input.constData()),
                               std::size_t(input.size()));
    }
    return names.isEmpty() ? 1 : 0;
}
