#include "SenderModuleDialog/edid/EDIDRaw.h"

#include <QByteArray>
#include <QSaveFile>

#include <cstdio>
#include <cstdlib>

/// Writes the 128-byte EDID block of a mode to a file. No window, no host, no application object.
int main(int argc, char* argv[])
{
    if (argc != 5) {
        std::fprintf(stderr, "Usage: edid-file WIDTH HEIGHT RATE FILE\n");
        return 2;
    }

    CEDIDRaw edid;
    edid.ChangeWH(std::atoi(argv[1]), std::atoi(argv[2]), std::strtof(argv[3], nullptr));
    // The object is the block: 128 bytes and nothing else.
    const QByteArray block(reinterpret_cast<const char*>(&edid), sizeof edid);

    QSaveFile file(QString::fromLocal8Bit(argv[4]));
    if (!file.open(QIODevice::WriteOnly) || file.write(block) != block.size() || !file.flush() ||
        !file.commit()) {
        std::fprintf(stderr, "edid-file: %s: %s\n", argv[4], qPrintable(file.errorString()));
        return 1;
    }
    return 0;
}
