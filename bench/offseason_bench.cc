// The offseason's inner loop: one player's year of development (his gains,
// the caps and his derived ratings) for every regimen of the computer's
// table. The whole year, store included, is `courtmere-cli bench-year`.
#include <benchmark/benchmark.h>

#include "offseason/develop_player.h"
#include "people/rating.h"
#include "platform/rng.h"

namespace courtmere {
namespace {

void BM_DevelopOneYear(benchmark::State& state) {
  Rng rng(26);
  Player base;
  for (const SkillColumn& skill : kSkillColumns) base.*skill.field = 60;
  base.Endurance = 2000;
  base.Potential = 75;
  for (auto _ : state) {
    for (int position = kPG; position <= kC; ++position) {
      Player p = base;
      p.PlayerPosition = position;
      GrowAttributes(rng, p, ComputerTrainingRow(position, 55), 12);
      CapAttributes(p);
      ComputeDerivedRatings(p);
      ComputeOverall(p);
      benchmark::DoNotOptimize(p.Overall);
    }
  }
  state.SetItemsProcessed(state.iterations() * 5);
}
BENCHMARK(BM_DevelopOneYear);

}  // namespace
}  // namespace courtmere
