#pragma once

#include <functional>
#include <iosfwd>
#include <optional>
#include <string>

#include "chart/allapot.h"
#include "chart/foablak.h"
#include "files/kvhrekord.h"

/// Chart files: the chart's record, then as many event records as it says.

/// A failure's message to the user; nothing on success.
using TKvhHiba = std::optional<std::string>;

/// The record of an event, its coordinates without seconds of arc.
/// @param index  the event's number from 1
TKvhRekord EsemenyRekord(const TEletesemeny& esemeny, int index);

/// The event of a record; nothing if its sound field is not a number, the Sun's house.
std::optional<TEletesemeny> EsemenyOlvasas(const TKvhRekord& rekord);

/// Writes the chart on screen with its events over the file. After a failure the old file stands as it was.
TKvhHiba KepletMentes(const Allapot& allapot, const std::string& fajl);

/// File name that saving proposes: the person's, as a plain file name.
std::string KvhFajlNev(const TSzemely& szemely);

/// Reads the file's fields into the state: the chart as typed data, the events into the store, whose slots
/// above the count keep what they held. After a failure, which an event count outside 0..20 is too, what was
/// read stays.
TKvhHiba KepletBeolvasas(Allapot& allapot, std::istream& be);

/// Reads a file, plays its sound, and shows its chart. A pipe, a device or a folder is a read error.
/// @param hangLink  called between reading and showing
TKvhHiba KepletMegnyitas(Allapot& allapot, FoAblak& ablak, const std::string& fajl,
                         const std::function<void()>& hangLink);
