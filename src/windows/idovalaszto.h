#pragma once

#include <QGroupBox>

/// The choice of the clock: zone time, local mean time, Greenwich mean time, in this order.
QGroupBox* ujIdoValaszto(QWidget* szulo);
