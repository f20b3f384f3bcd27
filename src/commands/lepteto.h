#pragma once

#include <array>
#include <string_view>

#include "chart/allapot.h"
#include "tables/pillanat.h"

/// The stepper: sixteen buttons that move the moment of the chart on screen. The next tick does the rest.

enum class LepesMezo { ev, ho, nap, ora, perc, mperc };

struct TLepes {
    std::string_view gomb;     ///< the button's name
    std::string_view felirat;  ///< its caption
    LepesMezo mezo;
    int mertek;  ///< units of the field
};

inline constexpr std::array<TLepes, 16> lepesek{{{"Button1evp", "+", LepesMezo::ev, 1},
                                                 {"Button2evm", "-", LepesMezo::ev, -1},
                                                 {"Button3hop", "+", LepesMezo::ho, 1},
                                                 {"Button4hom", "-", LepesMezo::ho, -1},
                                                 {"Button5napp", "+", LepesMezo::nap, 1},
                                                 {"Button6napm", "-", LepesMezo::nap, -1},
                                                 {"Button7orap", "+", LepesMezo::ora, 1},
                                                 {"Button8oram", "-", LepesMezo::ora, -1},
                                                 {"Button9percp", "+", LepesMezo::perc, 1},
                                                 {"Button10percm", "-", LepesMezo::perc, -1},
                                                 {"Button11percpp", "++", LepesMezo::perc, 10},
                                                 {"Button12percmm", "--", LepesMezo::perc, -10},
                                                 {"Button13mpercp", "+", LepesMezo::mperc, 1},
                                                 {"Button14mpercm", "-", LepesMezo::mperc, -1},
                                                 {"Button15mpercpp", "++", LepesMezo::mperc, 10},
                                                 {"Button16mpercmm", "--", LepesMezo::mperc, -10}}};

/// One press: moves the moment with its carries, stops the clock and leaves the recompute to the next tick.
/// The day number of the date stops at the table's ends; a date that does not exist counts on from its month.
void Leptetes(Allapot& allapot, const TLepes& lepes);

/// Moves a clock time by seconds, minutes or hours with the carries between them; the date stays.
/// @param mezo  day or smaller
/// @return days to move the date by
int IdoLeptetes(TPillanat& pillanat, LepesMezo mezo, int mertek);
