/// The loss table: any file is read without harm, and every tabulated frequency gives its own
/// value.

#include "module/formulacalc.h"

#include <QTemporaryFile>

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static QTemporaryFile file;
    if (!file.isOpen() && !file.open())
        return 0;
    file.resize(0);
    file.seek(0);
    file.write(reinterpret_cast<const char *>(data), static_cast<qint64>(size));
    file.flush();

    FormulaCalc *table = FormulaCalc::Instance();
    table->queryLossCompensationFromFile(file.fileName());
    const QList<double> keys = table->upsideMap().keys();
    for (const double key : keys) {
        table->queryLossCompensation(QStringLiteral("TRP"), key);
        table->queryLossCompensation(QStringLiteral("TIS"), key + 0.5);
    }
    return 0;
}
