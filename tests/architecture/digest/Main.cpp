// Prints one line per function: its name, how many results, and their digest.

#include "tests/architecture/digest/Digest.h"

#include <cinttypes>
#include <cstdio>

namespace {

using GetTable = std::vector<SDigestFunction> (*)();

constexpr GetTable c_arrTables[] = {
    GeometryDigests,
    ColourDigests,
    ChartDigests,
    EdidDigests,
};

} // namespace

int main()
{
    for (const GetTable funcGetTable : c_arrTables) {
        for (const SDigestFunction& function : funcGetTable()) {
            // Each function starts the sequence anew: a line depends on its own function alone.
            CSequence sequence;
            CDigest digest;
            function.funcRun(sequence, digest);
            std::printf("%s %" PRIu64 " %016" PRIx64 "\n", function.szName, digest.Count(), digest.Hash());
        }
    }
    return 0;
}
