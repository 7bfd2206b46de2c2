// A library for stand-ins: it is called in every way that the calling convention has.
#pragma once

namespace cutline::test {

struct SampleRow {
  long values[4];
};

extern "C" {

extern const int kSampleYear;

// The values, each times its place; nine do not fit into registers.
double sampleSum(double a, double b, double c, double d, double e, double f, double g, double h,
                 double i);

// Answered in memory of the caller's.
SampleRow sampleRow(long a, long b, long c, long d, long e, long f, long g);

// As many numbers as `count` says, each times its place.
double sampleAny(int count, ...);

}  // extern "C"

}  // namespace cutline::test
