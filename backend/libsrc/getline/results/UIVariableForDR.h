// UIVariableForDR: the values a user picked in the calling application
// (interfaces, protocols, addresses, VRF and route-map names, NAT entries),
// collected by kind and written just before a note runs into one text file per
// kind, which the note's program reads into its @UI_* lists.
//
// UIVariableType and UIVariableAction hold nothing but named constants. A
// UIVariableForDR is a plain value: copies are independent, nothing is shared,
// and one object may not be changed from two threads at once.
#pragma once

#include <map>
#include <set>
#include <string>

#include "platform/Export.h"

// Kinds of value lists; toString gives the base name of a kind's file.
class VTYCONF_API UIVariableType {
 public:
  // Numbered 1 to 7 in this order.
  enum : int {
    InterfaceList = 1,
    ProtocolList,
    IPAddressList,
    InterfaceNameList,
    VrfNameList,
    RouteMapNameList,
    NATList
  };

  // "UI_InterfaceList" ... "UI_NATList"; "UI_Unknown" for any other kind.
  static std::string toString(int kind);
};

// What the calling application does with a note's result. Single bits, so a
// caller may combine them; this library only stores the value.
class VTYCONF_API UIVariableAction {
 public:
  static constexpr int Unknown = 0;
  static constexpr int ExtendNbr = 1;
  static constexpr int Click = 2;
  static constexpr int ShowTip = 4;
  static constexpr int Observe = 8;
  static constexpr int AsTip = 16;
};

class VTYCONF_API UIVariableForDR {
 public:
  explicit UIVariableForDR(const std::string& deviceName = std::string(),
                           int uiAction = UIVariableAction::Unknown);

  void setDeviceName(const std::string& name) { mDeviceName = name; }
  int getUiAction() const { return mUiAction; }
  void setUiAction(int action) { mUiAction = action; }
  // Name of a subfolder: of the run folder when saving, of the script folder
  // when a folder of scripts is scanned.
  const std::string& getRootPath() const { return mRootPath; }
  void setRootPath(const std::string& path) { mRootPath = path; }

  // Adds a value to the list of a kind (any kind of 1 or more). The value is
  // cut at its last CR. An interface (kind 1) is stored as "interface <value>"
  // and its bare name goes to the interface-name list (kind 4) too. Values of
  // a list are distinct and kept in byte order. False for a kind below 1.
  bool addVariableValue(int kind, const std::string& value);
  // True when no value of that kind was ever added.
  bool isEmpty(int kind) const { return mValues.find(kind) == mValues.end(); }
  // Removes all lists; name, action and root path stay.
  void clear() { mValues.clear(); }
  // The lists by kind, for readers of the values.
  const std::map<int, std::set<std::string>>& getValues() const { return mValues; }

  // Writes one file "<toString(kind)>.txt" for each list into folder, or, when
  // flat is false and a root path is set, into folder/rootPath, which must
  // exist already. Each value stands on a line of its own (CR LF), in byte
  // order. False when the target folder does not exist; a single file that
  // cannot be written is passed over.
  bool save(const std::string& folder, bool flat) const;

 private:
  std::string mDeviceName;  // kept for the caller, not read here
  int mUiAction;
  std::string mRootPath;
  std::map<int, std::set<std::string>> mValues;
};
