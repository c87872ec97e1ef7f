#include "store/config.h"

#include "store/store.h"
#include "store/store_error.h"

namespace courtmere {

Config LoadConfig(Store& store) {
  Rows rows = store.Query(
      "SELECT CurrWeek, CurrDay, CurrYear, Stage, NextId, NumRecruits, NumPlayers, PlayByPlay, "
      "Autosave, SimSpeed, MaxGameNo FROM Config WHERE IdConfig = 0");
  if (!rows.Next()) throw StoreError("The store has no Config row");
  Config c;
  c.CurrWeek = rows.Int(0);
  c.CurrDay = rows.Text(1);
  c.CurrYear = rows.Int(2);
  c.Stage = rows.Text(3);
  c.NextId = rows.Int(4);
  c.NumRecruits = rows.Int(5);
  c.NumPlayers = rows.Int(6);
  c.PlayByPlay = rows.Int(7);
  c.Autosave = rows.Int(8);
  c.SimSpeed = rows.Int(9);
  c.MaxGameNo = rows.Int(10);
  if (c.NumRecruits > 20000) c.NumRecruits = 1;
  if (c.NumPlayers > 1) c.NumPlayers = 0;
  return c;
}

void SaveConfig(Store& store, const Config& c) {
  store.Exec(
      "UPDATE Config SET CurrWeek = ?, CurrDay = ?, CurrYear = ?, Stage = ?, NextId = ?, "
      "NumRecruits = ?, NumPlayers = ?, PlayByPlay = ?, Autosave = ?, SimSpeed = ?, "
      "MaxGameNo = ? WHERE IdConfig = 0",
      c.CurrWeek, c.CurrDay, c.CurrYear, c.Stage, c.NextId, c.NumRecruits, c.NumPlayers,
      c.PlayByPlay, c.Autosave, c.SimSpeed, c.MaxGameNo);
}

IdCounters LoadIdCounters(Store& store) {
  Config c = LoadConfig(store);
  return {c.NextId, c.NumRecruits, c.MaxGameNo};
}

void SaveIdCounters(Store& store, const IdCounters& ids) {
  store.Exec("UPDATE Config SET NextId = ?, NumRecruits = ?, MaxGameNo = ? WHERE IdConfig = 0",
             ids.NextId, ids.NumRecruits, ids.MaxGameNo);
}

}  // namespace courtmere
