#include "tvok/engine/persistence.h"

namespace tvok::mtvok {

using host::Read;
using host::ReadText;

void WriteListProperties(host::PropertyBag& bag, const ListState& state) {
    bag.WriteProperty("TmpKey", state.TmpKey, std::string());
    bag.WriteProperty("SelectedColor", state.SelectedColor, cHighlight);
    bag.WriteProperty("CX_TEXT", state.CX_TEXT, 20);
    bag.WriteProperty("xn", state.xn, 1);
    bag.WriteProperty("xnauto", state.XnAuto, false);
    bag.WriteProperty("yn", state.yn, 5);
    bag.WriteProperty("ItemHeight", state.ItemHeight, 18);
    bag.WriteProperty("IconPos", state.IconPos, cDefaultIconPos);
    bag.WriteProperty("GridlineWidth", state.GridlineWidth, 1);
    bag.WriteProperty("GridLineColor", state.GridlineColor, c3DLight);
    // This key is written with a capital L and read with a small one: a bag that compares names exactly does
    // not find it, and the property comes back false. Saved forms hold the key so, and both spellings stay.
    bag.WriteProperty("GridLineOnBorder", state.GridlineOnBorder, false);
    bag.WriteProperty("FixedWidthForLastXn", state.FixedWidthForLastXn, false);
    bag.WriteProperty("FixedHeight", state.FixedHeight, true);
    bag.WriteProperty("IconBorderColor", state.IconBorderColor, cWindowFrame);
    bag.WriteProperty("BackColor", state.BackColor, cWindowBackground);
    bag.WriteProperty("ColWidthSettingStr", state.ColWidthSettingStr, std::string());
    bag.WriteProperty("TabStopSettingStr", state.TabStopSettingStr, std::string());
    bag.WriteProperty("ItemWidth", state.ItemWidth, 100);
    bag.WriteProperty("HotTrack", state.HotTrack, false);
    bag.WriteProperty("HeadWidthEx", state.HeadWidthEx, 0);
    bag.WriteProperty("HeadExBackColor", state.HeadExBackColor, c3DLight);
    bag.WriteProperty("HeadExBorderColor", state.HeadExBorderColor, cButtonFace);
}

void ReadListProperties(host::PropertyBag& bag, ListState& state) {
    state.TmpKey = ReadText(bag, "TmpKey");
    state.SelectedColor = Read(bag, "SelectedColor", cHighlight);
    state.CX_TEXT = Read(bag, "CX_TEXT", 20);
    state.xn = Read(bag, "xn", 1);
    state.XnAuto = Read(bag, "xnauto", false);
    state.yn = Read(bag, "yn", 5);
    state.ItemHeight = Read(bag, "ItemHeight", 18);
    state.ItemWidth = Read(bag, "ItemWidth", 100);
    state.IconPos = Read(bag, "IconPos", cDefaultIconPos);
    state.FixedHeight = Read(bag, "FixedHeight", true);
    state.FixedWidthForLastXn = Read(bag, "FixedWidthForLastXn", false);
    state.IconBorderColor = Read(bag, "IconBorderColor", cWindowFrame);
    state.GridlineColor = Read(bag, "GridLineColor", c3DLight);
    state.GridlineWidth = Read(bag, "GridlineWidth", 1);
    state.GridlineOnBorder = Read(bag, "GridlineOnBorder", false); // spelled unlike the key that is written
    state.BackColor = Read(bag, "BackColor", cWindowBackground);
    state.ColWidthSettingStr = ReadText(bag, "ColWidthSettingStr");
    state.TabStopSettingStr = ReadText(bag, "TabStopSettingStr");
    state.HotTrack = Read(bag, "HotTrack", false);
    state.HeadWidthEx = Read(bag, "HeadWidthEx", 0);
    state.HeadExBackColor = Read(bag, "HeadExBackColor", c3DLight);
    state.HeadExBorderColor = Read(bag, "HeadExBorderColor", cButtonFace);
}

// A new control has no grid lines, while a saved one without the key has lines of one pixel; and
// `FixedHeight` is left as it is. Both stay.
void InitListProperties(ListState& state) {
    state.GridlineWidth = 0;
    state.GridlineOnBorder = false;
    state.GridlineColor = c3DLight;
    state.XnAuto = false;
    state.HotTrack = false;
    state.HeadWidthEx = 0;
    state.HeadExBackColor = c3DLight;
    state.HeadExBorderColor = cButtonFace;
    state.FixedWidthForLastXn = false;
    state.IconPos = cDefaultIconPos;
    state.ItemWidth = 100;
    state.ItemHeight = 18;
    state.SelectedColor = cHighlight;
    state.IconBorderColor = cWindowFrame;
    state.BackColor = cWindowBackground;
    state.CX_TEXT = 20;
    state.xn = 1;
    state.yn = 5;
    state.TmpKey.clear();
}

} // namespace tvok::mtvok
