// A benchmark here is a pair that runs in one process: ours and a baseline. Each pair prints one
// line with the ratio of the two, so that a slow or busy machine does not matter.
#pragma once

#include <benchmark/benchmark.h>

#include <QString>

struct BenchGoal
{
    double ratio;      // the highest that we accept
    QString unit;      // of the printed figures
    double perSecond;  // the unit in seconds: 1e-6 for microseconds
    // Where no baseline makes sense the bound that we state takes its place, in the unit.
    double bound = 0;
    // The functions run once a repetition and tell their own figure, by SetIterationTime.
    bool ownFigure = false;
};

using BenchFunction = void (*)(benchmark::State&);

// Registers the pair; `base` is null where the goal has a bound.
void registerPair(const char* name, const BenchGoal& goal, BenchFunction ours, BenchFunction base,
                  int repetitions = 5);

// Runs the pairs whose name contains `filter` and prints their lines. False if any ratio is over
// its goal.
bool runPairs(const QString& filter);
