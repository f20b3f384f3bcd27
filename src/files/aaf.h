#pragma once

#include <string>
#include <string_view>

#include "files/adatlap.h"
#include "files/bajtszoveg.h"

/// AAF, the text format in which astrology programs exchange birth data: records of chunks, `#A93:` the
/// person,
/// `#B93:` moment and place, `#SUB:` a life event, `#COM:` remarks.
///
/// What a chart file holds beyond that stands in remarks that a person can read as well: "Hangjel: …" the
/// sound mark, and behind an event "Házanalógiák: …" and "Solar-Nap: …". Source and hander-on of other
/// programs are lines of the note, "Forrás: …" and "Közreadta: …".

/// Reads all records. Lines that are no UTF-8 are read by the code page. A record that can't be read is
/// reported and left out; of an unreadable event only the event. Whether a chart can be cast is not asked:
/// see `adatellenorzes.h`.
TAdatlapok AafOlvasas(std::string_view bajtok, TKodlap kodlap);

/// The remark of the writing program, at the head of a file.
std::string AafFejlec();

/// One record, lines ended by CR LF. Commas and line ends in the fields become semicolons and blanks.
std::string AafIras(const TAdatlap& lap);
