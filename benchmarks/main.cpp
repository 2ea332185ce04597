// Runs the benchmarks and prints, for each operation, what the library costs beside the plain code.
//
// A pair is two benchmarks named "<Operation>/Kx" and "<Operation>/plain". The ratio is that of the median
// CPU times of the repetitions, which are interleaved so that a busy machine slows both sides alike.

#include <benchmark/benchmark.h>

#include <QApplication>

#include <cstdio>
#include <map>
#include <string>
#include <vector>

namespace {

struct Pair
{
    double kx = 0;
    double plain = 0;
};

class PairReporter : public benchmark::ConsoleReporter
{
public:
    void ReportRuns(const std::vector<Run> &runs) override
    {
        ConsoleReporter::ReportRuns(runs);
        for (const Run &run : runs) {
            if (run.aggregate_name == "median")
                note(run);
        }
    }

    void printRatios() const
    {
        std::printf("\n%-40s %12s %12s %8s\n", "Operation", "Kx [ns]", "plain [ns]", "ratio");
        for (const auto &[operation, pair] : m_pairs) {
            if (pair.kx > 0 && pair.plain > 0) {
                std::printf("%-40s %12.1f %12.1f %8.2f\n", operation.c_str(), pair.kx, pair.plain,
                            pair.kx / pair.plain);
            }
        }
    }

private:
    void note(const Run &run)
    {
        const std::string &name = run.run_name.function_name;
        const std::size_t slash = name.rfind('/');
        if (slash == std::string::npos)
            return;
        std::string operation = name.substr(0, slash);
        if (!run.run_name.args.empty())
            operation += " " + run.run_name.args;
        const std::string side = name.substr(slash + 1);
        const double nanoseconds = run.cpu_accumulated_time / double(run.iterations) * 1e9;
        if (side == "Kx")
            m_pairs[operation].kx = nanoseconds;
        else if (side == "plain")
            m_pairs[operation].plain = nanoseconds;
    }

    std::map<std::string, Pair> m_pairs;
};

// The caller's own arguments come last, so that they win.
std::vector<char *> withDefaults(int argc, char **argv)
{
    static char repetitions[] = "--benchmark_repetitions=9";
    static char interleaved[] = "--benchmark_enable_random_interleaving=true";
    static char shortRuns[] = "--benchmark_min_time=0.05";
    static char aggregates[] = "--benchmark_display_aggregates_only=true";
    std::vector<char *> arguments{argv[0], repetitions, interleaved, shortRuns, aggregates};
    arguments.insert(arguments.end(), argv + 1, argv + argc);
    return arguments;
}

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);

    std::vector<char *> arguments = withDefaults(argc, argv);
    int count = int(arguments.size());
    benchmark::Initialize(&count, arguments.data());
    if (benchmark::ReportUnrecognizedArguments(count, arguments.data()))
        return EXIT_FAILURE;

    PairReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    reporter.printRatios();
    return EXIT_SUCCESS;
}
