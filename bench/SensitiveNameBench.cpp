#include "model/Rater.h"

#include <benchmark/benchmark.h>

#include <string_view>

/// The document-name test runs once for every file that a scan lists in a dozen of its kinds.
namespace {

void isSensitiveName(benchmark::State& state, std::string_view name)
{
    (void)orlen::Rater::isSensitiveName(name); // reads the dictionary before the clock runs
    while (state.KeepRunning())
        benchmark::DoNotOptimize(orlen::Rater::isSensitiveName(name));
    state.SetItemsProcessed(state.iterations());
}

BENCHMARK_CAPTURE(isSensitiveName, plain, "IMG_20240517_183012.jpg");
BENCHMARK_CAPTURE(isSensitiveName, sensitive, "Invoice_2023.pdf");
BENCHMARK_CAPTURE(isSensitiveName, inflected, "subleases and leases.pdf");
BENCHMARK_CAPTURE(isSensitiveName, longCamelCase,
                  "myHolidayPicturesFromTheLongSummerWeekendNearTheCoastWithAllOfMyOldSchoolFriends.tar.gz");

} // namespace
