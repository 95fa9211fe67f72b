// Benchmarks of the core and of the main window. A benchmark whose label reads "base=NAME" is printed
// again at the end as a ratio to NAME (a memcpy of the same number of bytes,
// measured in the same run), so figures compare across machines.
#include <QApplication>
#include <benchmark/benchmark.h>
#include <cstdio>
#include <map>
#include <string>

namespace {

class ReporterComRazao : public benchmark::ConsoleReporter {
public:
    void ReportRuns(const std::vector<Run> &runs) override
    {
        for (const Run &r : runs) {
            if (r.run_type != Run::RT_Iteration || r.error_occurred)
                continue;
            tempos_[r.benchmark_name()] = r.GetAdjustedRealTime()
                / benchmark::GetTimeUnitMultiplier(r.time_unit);
            if (r.report_label.rfind("base=", 0) == 0)
                bases_.emplace_back(r.benchmark_name(), r.report_label.substr(5));
        }
        ConsoleReporter::ReportRuns(runs);
    }
    void Finalize() override
    {
        ConsoleReporter::Finalize();
        std::printf("\nRatios to each benchmark's baseline, measured in this run (time / baseline time):\n");
        for (const auto &[nome, base] : bases_) {
            const auto a = tempos_.find(nome), b = tempos_.find(base);
            if (a == tempos_.end() || b == tempos_.end() || b->second <= 0)
                continue;
            std::printf("  %-28s %10.1f x  (%.3f ms)\n", nome.c_str(), a->second / b->second, a->second * 1e3);
        }
    }

private:
    std::map<std::string, double> tempos_;  // seconds per iteration
    std::vector<std::pair<std::string, std::string>> bases_;
};

}  // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    ReporterComRazao reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    benchmark::Shutdown();
    return 0;
}
