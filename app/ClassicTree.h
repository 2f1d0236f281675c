#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace zentaro {

class Player;

/// One menu or item of the classic tree, known by its control's name and, in a control array, its index.
struct ClassicItem {
    std::string name;
    int index = 0;                 ///< 0 outside control arrays
    std::string caption;           ///< "&" marks the access letter; empty for separators
    std::string parent;            ///< the name of the menu it lies in; empty at the top
    std::string_view command = {}; ///< the id of what a click does; `index` goes with it
    /// When it is enabled; found out each time that its menu is opened.
    enum class Needs { Nothing, LoadedItem, Entries } needs = Needs::Nothing;
    bool isSeparator = false;
    bool checked = false;
    bool enabled = true;
    bool visible = true;
    std::string tag;
};

/// The data of `frmMenu`: the menus that are popped up from the tray, the playlist and the DVD button.
class ClassicTree {
public:
    ClassicTree();

    /// In menu order. Control arrays can grow and shrink.
    const std::vector<ClassicItem>& Items() const { return m_items; }
    /// Null when there is no such item.
    const ClassicItem* Find(std::string_view name, int index = 0) const;
    bool IsMenu(const ClassicItem& item) const;
    /// Items of a control array.
    int Count(std::string_view name) const;
    /// Whether the captions in it are names of files or discs: then no character of them has a meaning.
    static bool IsSlot(const ClassicItem& item) { return item.name == "mnuRecent" || item.name == "dvdsList"; }

    // An unknown item changes nothing.
    void SetCaption(std::string_view name, int index, const std::string& caption);
    void SetTag(std::string_view name, int index, const std::string& tag);
    void SetChecked(std::string_view name, int index, bool checked);
    void SetEnabled(std::string_view name, int index, bool enabled);
    void SetVisible(std::string_view name, int index, bool visible);
    /// Adds the next item to a control array, shown and enabled.
    void Load(std::string_view name, const std::string& caption);
    /// Takes the last item out of a control array; the first one stays.
    void UnloadLast(std::string_view name);

    /// Called after each change.
    std::function<void()> onChange;

private:
    template <typename Value> void Set(std::string_view name, int index, Value ClassicItem::*field, const Value& value);
    void Changed() const;

    std::vector<ClassicItem> m_items;
};

/// An item of the classic tree was clicked. Menus, separators and placeholders do nothing.
void ClickClassicItem(Player& player, const ClassicItem& item);

/// A menu of the classic tree is about to be shown: brings its items in line with the player.
void OpenClassicMenu(Player& player, std::string_view menu);

} // namespace zentaro
