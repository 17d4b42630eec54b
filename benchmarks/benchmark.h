#ifndef NOCTURNE_BENCHMARK_H
#define NOCTURNE_BENCHMARK_H

#include <QtCore/QString>
#include <QtCore/QVector>
#include <QtCore/QtGlobal>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <functional>

/// Benchmarks need no display, unless the caller chose one. Call it before the application is made.
inline void useOffscreenPlatform()
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
}

/// Times a piece of our work against a peer's in one run.
///
/// Both sides alternate in short batches, so that whatever else the machine does falls on both;
/// the figure of each side is the median batch.
class Benchmark
{
public:
    struct Result
    {
        QString name;
        double ours = 0.0; ///< microseconds a call
        double peer = 0.0; ///< microseconds a call
        double ratio() const { return peer > 0.0 ? ours / peer : 0.0; }
    };

    /// Calls each side \a calls times in each of \a batches batches after one warm-up batch.
    Result compare(const QString &name, const std::function<void()> &ours,
                   const std::function<void()> &peer, int calls = 50, int batches = 21)
    {
        QVector<double> ourTimes;
        QVector<double> peerTimes;
        microseconds(ours, calls);
        microseconds(peer, calls);
        for (int i = 0; i < batches; ++i) {
            ourTimes << microseconds(ours, calls);
            peerTimes << microseconds(peer, calls);
        }
        m_results << Result{name, median(ourTimes), median(peerTimes)};
        return m_results.last();
    }

    /// Adds figures that were measured elsewhere, in microseconds.
    void add(const QString &name, double ours, double peer)
    {
        m_results << Result{name, ours, peer};
    }

    const QVector<Result> &results() const { return m_results; }

    /// Prints a row a comparison and the sums, with the headings given for the two sides.
    void print(const char *ourHeading, const char *peerHeading, bool withSum = true) const
    {
        std::printf("%-44s %14s %14s %8s\n", "", ourHeading, peerHeading, "ratio");
        double ourSum = 0.0;
        double peerSum = 0.0;
        for (const Result &result : m_results) {
            std::printf("%-44s %11.2f us %11.2f us %8.2f\n", qPrintable(result.name), result.ours,
                        result.peer, result.ratio());
            ourSum += result.ours;
            peerSum += result.peer;
        }
        if (withSum && m_results.size() > 1) {
            std::printf("%-44s %11.2f us %11.2f us %8.2f\n", "sum", ourSum, peerSum,
                        peerSum > 0.0 ? ourSum / peerSum : 0.0);
        }
        std::fflush(stdout);
    }

    static double median(QVector<double> values)
    {
        if (values.isEmpty())
            return 0.0;
        std::sort(values.begin(), values.end());
        return values.at(values.size() / 2);
    }

private:
    static double microseconds(const std::function<void()> &work, int calls)
    {
        // The processor's time, not the clock's: what else the machine does then counts for less.
        const std::clock_t start = std::clock();
        for (int i = 0; i < calls; ++i)
            work();
        return double(std::clock() - start) * 1e6 / CLOCKS_PER_SEC / calls;
    }

    QVector<Result> m_results;
};

#endif
