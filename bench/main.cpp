#include "BenchRecord.h"
#include "Damage_bench.h"
#include "Growth_bench.h"
#include "Lookup_bench.h"
#include "Record_bench.h"

#include <benchmark/benchmark.h>

#include <cstring>
#include <exception>
#include <iostream>

/// Takes `--types=FILE` besides the options of the benchmark library.
int main(int argc, char** argv)
{
    std::string typesFile;
    int kept = 1;
    for (int i = 1; i < argc; ++i)
    {
        if (std::strncmp(argv[i], "--types=", 8) == 0)
        {
            typesFile = argv[i] + 8;
        }
        else
        {
            argv[kept++] = argv[i];
        }
    }
    benchmark::Initialize(&kept, argv);
    if (benchmark::ReportUnrecognizedArguments(kept, argv))
    {
        return 2;
    }
    try
    {
        setUpFactories();
        registerLargestDescriptor();
        registerDamageQueries();
        registerGrowth();
        registerLookups(typesFile);
        benchmark::RunSpecifiedBenchmarks();
        benchmark::Shutdown();
        return 0;
    }
    catch (std::exception const& error)
    {
        std::cerr << "zedobjparam_bench: " << error.what() << '\n';
        return 2;
    }
}
