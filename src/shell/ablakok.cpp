#include "shell/ablakok.h"

TAblakok::TAblakok() {
    form1.ablakokBeallitasa(this);
}
