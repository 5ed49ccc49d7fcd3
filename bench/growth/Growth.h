// Measures growth: what each operation takes for n of something and for four times as many, and the
// ratio of the two ("fourfold"). An operation whose time is in proportion to what it is given has
// about 4; one that looks at everything for each of n things heads for 16. The runs of the two
// sizes take turns and their medians count, so that a busy machine weighs on both alike.
// AS_GROWTH=25000 in the environment measures with that n.
#ifndef BENCH_GROWTH_GROWTH_H_
#define BENCH_GROWTH_GROWTH_H_

#include <functional>
#include <string>

namespace growth {

// What is measured, prepared: the time of the call counts, that of preparing it does not.
using Work = std::function<void()>;

constexpr int anyNumber = 1 << 30;

// Has growth/`name` measured: `prepare(n)` is the work with n of it, at most `most`.
void add(const std::string& name, int most, const std::function<Work(int)>& prepare);

}  // namespace growth

#endif  // BENCH_GROWTH_GROWTH_H_
