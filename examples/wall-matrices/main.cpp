#include "instruments/colour/MeasurementCsv.h"
#include "instruments/colour/ModuleWall.h"

#include <QFile>

#include <cstdio>

namespace {

/// A stand-in for what loads the matrices into the modules.
void Load(const std::vector<CColourMatrix>& vecMatrices, double dLevel)
{
    std::printf("%zu matrices for level %.4f; the first begins with %.5f\n", vecMatrices.size(), dLevel,
                vecMatrices.front().At(0, 0));
}

} // namespace

/// Reads the measurements of a wall's modules and makes the matrices that let all modules show the same.
int main(int argc, char* argv[])
{
    QFile file(QString::fromLocal8Bit(argc > 1 ? argv[1] : ""));
    if (!file.open(QIODevice::ReadOnly)) {
        std::fprintf(stderr, "Usage: wall-matrices FILE.csv\n");
        return 2;
    }
    const QByteArray content = file.readAll();

    const SMeasurements wall = MeasurementCsv::Read(content); // wall.error says where and what
    if (wall.error) {
        std::fprintf(stderr, "%s\n", qPrintable(wall.error->Text()));
        return 1;
    }
    const auto common = ModuleWall::CommonOf(wall.modules, {0.3127, 0.3290});
    if (common)
        Load(common->vecMatrices, common->dLevel); // else common.Fault() says why
    return common ? 0 : 1;
}
