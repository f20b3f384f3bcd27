#pragma once

#include <string>
#include <vector>

/// What differs between systems where a tool meets its command line.

/// The arguments without the program's name, in UTF-8 on every system.
std::vector<std::string> Argumentumok(int argc, char** argv);

/// Standard input and output give and take bytes as they are: no system turns line ends into others.
void BinarisBeKimenet();
