#pragma once

#include <functional>

#include <QTest>

#include "ablakteszt.h"

/// Answers the modal dialog that the next command opens, once it has the keyboard: so its shortcuts and its
/// completer work as under a user's hands.
inline void aktivValasz(std::function<void(QWidget&)> teendo) {
    valasz([teendo = std::move(teendo)](QWidget& d) {
        QVERIFY(QTest::qWaitForWindowActive(&d));
        teendo(d);
    });
}
