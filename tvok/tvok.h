/// The whole library: every control and the software desktop.
#pragma once

#include "tvok/controls/buttonstrip/xbutton.h"
#include "tvok/controls/colorselector/ucColorSelector.h"
#include "tvok/controls/columnbar/pcols.h"
#include "tvok/controls/flatlist/qRoster.h"
#include "tvok/controls/iconlabel/iLabel.h"
#include "tvok/controls/largelist/qRosterex.h"
#include "tvok/controls/popup/xPopup.h"
#include "tvok/controls/propertylist/gList.h"
#include "tvok/host/desktop/ControlTypes.h"
#include "tvok/host/desktop/Desktop.h"
#include "tvok/host/desktop/Form.h"
#include "tvok/host/desktop/FormFile.h"
#include "tvok/host/desktop/TextBox.h"
#include "tvok/records/tvok_declare.h"
