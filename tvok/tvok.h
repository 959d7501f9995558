/// The whole library: every control and the software desktop.
#pragma once

#include "tvok/controls/flatlist/qRoster.h"
#include "tvok/controls/largelist/qRosterex.h"
#include "tvok/host/desktop/ControlTypes.h"
#include "tvok/host/desktop/Desktop.h"
#include "tvok/host/desktop/Form.h"
#include "tvok/host/desktop/TextBox.h"
#include "tvok/records/tvok_declare.h"
