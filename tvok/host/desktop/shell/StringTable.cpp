#include "tvok/host/desktop/shell/StringTable.h"

#include <array>
#include <string_view>

#include "tvok/host/desktop/shell/Language.h"
#include "tvok/records/numeric.h"
#include "tvok/records/tvok_declare.h"

namespace tvok::soft {

namespace {

using ColorNames = std::array<std::string_view, 25>;

// "Buttton Text" has three t: hosts look the colour up by this very name, so it stays.
constexpr ColorNames English{{
    "Scroll Bar",
    "DeskTop",
    "Active Title Bar",
    "Inactive Title Bar",
    "Menu Bar",
    "Window Background",
    "Window Frame",
    "Menu Text",
    "Window Text",
    "Active Title Bar Text",
    "Active Border",
    "Inactive Border",
    "Application Workspace",
    "Highlight",
    "Highlight Text",
    "Button Face",
    "Button Shadow",
    "Disabled Text",
    "Buttton Text",
    "Inactive Title Bar Text",
    "Button Highlight",
    "Button Dark Shadow",
    "Button Light Shadow",
    "ToolTip Text",
    "Tooltip Background",
}};

constexpr ColorNames TraditionalChinese{{
    "捲軸灰色區域的色彩",
    "桌面色彩",
    "使用中視窗的標題色彩",
    "非使用中視窗的標題色彩",
    "功能表背景色彩",
    "視窗背景色彩",
    "視窗外框色彩",
    "功能表中的文字色彩",
    "視窗中的文字色彩",
    "現用標題文字色彩",
    "使用中視窗的框線色彩",
    "非使用中視窗的框線色彩",
    "多重文件介面應用程式的背景色彩",
    "控制項中選取項目的背景色彩",
    "控制項中選取項目的文字色彩",
    "按鈕的表面色彩",
    "按鈕的陰影色彩",
    "暫止狀態的文字色彩",
    "按鈕的文字色彩",
    "非使用中標題的文字色彩",
    "立體顯示項目的反白色彩",
    "立體顯示項目的較深陰影",
    "視窗的陰影色彩",
    "工具提示的文字色彩",
    "工具提示的背景色彩",
}};

constexpr ColorNames SimplifiedChinese{{
    "卷轴灰色区域的色彩",
    "桌面色彩",
    "使用中视窗的标题色彩",
    "非使用中视窗的标题色彩",
    "功能表背景色彩",
    "视窗背景色彩",
    "视窗外框色彩",
    "功能表中的文字色彩",
    "视窗中的文字色彩",
    "现用标题文字色彩",
    "使用中视窗的框线色彩",
    "非使用中视窗的框线色彩",
    "多重文件介面应用程式的背景色彩",
    "控制项中选取项目的背景色彩",
    "控制项中选取项目的文字色彩",
    "按钮的表面色彩",
    "按钮的阴影色彩",
    "暂止状态的文字色彩",
    "按钮的文字色彩",
    "非使用中标题的文字色彩",
    "立体显示项目的反白色彩",
    "立体显示项目的较深阴影",
    "视窗的阴影色彩",
    "工具提示的文字色彩",
    "工具提示的背景色彩",
}};

constexpr std::int32_t FirstColorValue = 100;
constexpr std::int32_t FirstColorName = 1000;

const ColorNames& NamesIn(std::string_view language) {
    if (!language.starts_with("zh")) return English;
    for (const std::string_view part : {"Hant", "TW", "HK", "MO"})
        if (language.find(part) != std::string_view::npos) return TraditionalChinese;
    return SimplifiedChinese;
}

class StringTable : public host::StringResources {
public:
    explicit StringTable(const ColorNames& names) : names_(names) {}

    std::string LoadResString(std::int32_t number) const override {
        const auto count = static_cast<std::int32_t>(names_.size());
        if (number >= FirstColorValue && number < FirstColorValue + count)
            return HexText(SystemColor(number - FirstColorValue));
        if (number >= FirstColorName && number < FirstColorName + count)
            return std::string(names_[static_cast<std::size_t>(number - FirstColorName)]);
        return {};
    }

private:
    const ColorNames& names_;
};

} // namespace

std::unique_ptr<host::StringResources> MakeStringResources(const std::string& wanted) {
    return std::make_unique<StringTable>(NamesIn(LanguageName(wanted)));
}

} // namespace tvok::soft
