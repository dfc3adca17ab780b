// Controls and the events that their properties raise.
#include "platform/controls.h"

#include "platform/run_time_error.h"
#include "platform/utf8.h"

#include <algorithm>

namespace veritane::platform {

namespace {

void Raise(const Handler& handler) {
  if (handler) handler();
}

void CheckIndex(int index, int count) {
  if (index < -1 || index >= count) throw RunTimeError(ErrorNumber::kInvalidCall);
}

}  // namespace

void Button::Click() const {
  Raise(OnClick);
}

void OptionButton::Group(const std::vector<OptionButton*>& members) {
  for (OptionButton* member : members) {
    member->others_ = members;
    std::erase(member->others_, member);
  }
}

void OptionButton::Check() {
  if (checked_) return;
  for (OptionButton* other : others_) other->Uncheck();
  checked_ = true;
  Changed(Property::kChecked);
  Raise(OnClick);
}

void OptionButton::Uncheck() {
  if (!checked_) return;
  checked_ = false;
  Changed(Property::kChecked);
}

void CheckBox::SetChecked(bool checked) {
  if (checked == checked_) return;
  checked_ = checked;
  Changed(Property::kChecked);
  Raise(OnClick);
}

void TextBox::SetText(const std::string& text) {
  highlight_start_ = 0;
  highlight_length_ = 0;
  std::string shown = text;
  if (!isMultiLine) std::erase_if(shown, [](char c) { return static_cast<unsigned char>(c) < 0x20; });
  if (shown == text_) return;
  text_ = shown;
  Changed(Property::kText);
  Raise(OnChange);
}

bool TextBox::KeyPress(int key) const {
  return OnKeyPress ? OnKeyPress(key) : true;
}

void TextBox::Highlight(int start, int length) {
  const auto characters = static_cast<int>(CharacterCount(text_));
  highlight_start_ = std::clamp(start, 0, characters);
  highlight_length_ = std::clamp(length, 0, characters - highlight_start_);
  Changed(Property::kHighlight);
}

std::string TextBox::HighlightedText() const {
  return Characters(text_, static_cast<std::size_t>(highlight_start_),
                    static_cast<std::size_t>(highlight_length_));
}

std::string ItemList::SelectedItem() const {
  return selected_ < 0 ? "" : items_[static_cast<std::size_t>(selected_)];
}

void ItemList::Clear() {
  items_.clear();
  selected_ = -1;
  ItemsChanged();
}

void ItemList::Add(const std::string& item) {
  AddAll({item});
}

void ItemList::AddAll(const std::vector<std::string>& items) {
  items_.insert(items_.end(), items.begin(), items.end());
  ItemsChanged();
}

void ListBox::Remove(int index) {
  if (index < 0) throw RunTimeError(ErrorNumber::kInvalidCall);
  CheckIndex(index, Count());
  items_.erase(items_.begin() + index);
  if (selected_ == index) {
    selected_ = -1;
  } else if (selected_ > index) {
    --selected_;
  }
  Changed(Property::kItems);
}

void ListBox::Select(int index) {
  CheckIndex(index, Count());
  selected_ = index;
  Changed(Property::kSelected);
  if (index >= 0) Raise(OnClick);
}

void ComboBox::Clear() {
  ItemList::Clear();
  TextBox::SetText("");
}

void ComboBox::Select(int index) {
  CheckIndex(index, Count());
  selected_ = index;
  Changed(Property::kSelected);
  TextBox::SetText(SelectedItem());
  if (index >= 0) Raise(OnClick);
}

void ComboBox::SetText(const std::string& text) {
  const auto found = std::find(items_.begin(), items_.end(), text);
  const int index = found == items_.end() ? -1 : static_cast<int>(found - items_.begin());
  if (!isEditable) {
    if (index < 0) throw RunTimeError(ErrorNumber::kInvalidCall, text);
    if (index != selected_) Select(index);
    return;
  }
  if (index != selected_) {
    selected_ = index;
    Changed(Property::kSelected);
  }
  TextBox::SetText(text);
}

void TabControl::SetPageCaption(int page, const std::string& caption) {
  captions_.at(static_cast<std::size_t>(page)) = caption;
  Changed(Property::kCaption);
}

void TabControl::SetTab(int page) {
  if (page < 0 || page >= PageCount()) throw RunTimeError(ErrorNumber::kInvalidCall);
  if (page == tab_) return;
  const int previous = tab_;
  tab_ = page;
  Changed(Property::kTab);
  if (OnChange) OnChange(previous);
}

}  // namespace veritane::platform
