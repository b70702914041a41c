// What a step did, as a fact about the channels that it touched; UTF-8.
#pragma once

#include "edit/list_operations.h"

#include <string>
#include <string_view>

namespace Edit {

// The name of what is in a slot: "RAI 1", "canale 12 senza nome", "posto vuoto 4".
std::string NameIn(const State& state, int slot);

// "RAI 1, RAI 2, RAI 3…": the first names of the channels among some slots; empty where all are empty.
std::string NamesIn(const State& state, const Slots& slots);

// "Eliminato RAI 1", "Eliminati 7 canali: RAI 1, RAI 2, RAI 3…", "Eliminati 2 canali e 1 posto vuoto: …" for `one`
// "Eliminato" and `more` "Eliminati". `what` stands behind the count or the name: " da Cinema".
std::string Told(const State& state, const Slots& slots, std::string_view one, std::string_view more,
                 std::string_view what = {});

// "Attivato RAI 1", "Disattivati 7 canali: …"
std::string ToldActive(const State& state, const Slots& slots, bool active);

// "Spostato RAI 1 dal 705 al 1", "Spostati 3 canali ai posti da 1 a 3: …": channels about to be gathered from slot `to` on.
std::string ToldMove(const State& state, const Slots& slots, int to);

}  // namespace Edit
