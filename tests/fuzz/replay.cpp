#include "tests/fuzz/fuzzing.h"

#include <QDirIterator>

/// Runs a fuzz target over the files of a directory: the known inputs, among them every one that once failed.
int main(int /*argc*/, char **argv)
{
    int inputs = 0;
    for (QDirIterator files(QFile::decodeName(argv[1]), QDir::Files); files.hasNext(); ++inputs) {
        QFile file(files.next());
        // Names the culprit when the last line ends the process.
        qWarning("%s", qPrintable(file.fileName()));
        if (!file.open(QIODevice::ReadOnly))
            return 1;
        check(FuzzInput(file.readAll()));
    }
    return inputs == 0;
}
