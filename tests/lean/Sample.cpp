#include "tests/lean/Sample.h"

#include <cstdarg>

namespace cutline::test {

const int kSampleYear = 2026;

double sampleSum(double a, double b, double c, double d, double e, double f, double g, double h,
                 double i) {
  return a + 2 * b + 3 * c + 4 * d + 5 * e + 6 * f + 7 * g + 8 * h + 9 * i;
}

SampleRow sampleRow(long a, long b, long c, long d, long e, long f, long g) {
  return {{a + 2 * b, 3 * c + 4 * d, 5 * e + 6 * f, 7 * g}};
}

double sampleAny(int count, ...) {
  va_list numbers;
  va_start(numbers, count);
  double sum = 0;
  for (int at = 1; at <= count; ++at) sum += at * va_arg(numbers, double);
  va_end(numbers);
  return sum;
}

}  // namespace cutline::test
