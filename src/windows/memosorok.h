#pragma once

#include <string>
#include <utility>
#include <vector>

#include <QList>
#include <QPlainTextEdit>

/// New lines for lists that are run again and again beside the user's work. Scrolled lists stay where they
/// are; a list whose lines come out the same is not touched, so that its selection stays too.
/// @param memok  lists that scroll together come in one call
void memoSorok(const QList<std::pair<QPlainTextEdit*, std::vector<std::string>>>& memok);
