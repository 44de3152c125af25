#include "OemXmlReader.h"

#include <pugixml.hpp>
#include <utility>

#include "OemMetadata.h"
#include "StateText.h"

namespace quorb {

namespace {

/// The element's name without its namespace prefix.
std::string_view LocalName(const pugi::xml_node& node) {
  const std::string_view name = node.name();
  const std::size_t colon = name.find(':');
  return colon == std::string_view::npos ? name : name.substr(colon + 1);
}

pugi::xml_node ChildNamed(const pugi::xml_node& parent, std::string_view name) {
  return parent.find_child([name](const pugi::xml_node& child) { return LocalName(child) == name; });
}

/// A failure at an element of the document that was parsed from `text`.
ReadResult FaultAtElement(std::string_view text, const pugi::xml_node& element, std::string_view what) {
  return FaultAtLine(LineOfOffset(text, static_cast<std::size_t>(element.offset_debug())), what);
}

ReadResult ReadMetadata(std::string_view text, const pugi::xml_node& metadata, StateTable& out) {
  for (const pugi::xml_node& entry : metadata.children()) {
    const std::string clash = KeepOemEntry(LocalName(entry), entry.child_value(), out);
    if (!clash.empty()) return FaultAtElement(text, entry, clash);
  }
  return {};
}

/// Checks one element of a state vector: it is there, its text is in one piece, its unit is the kilometre.
ReadResult CheckComponent(std::string_view text, const pugi::xml_node& state, const pugi::xml_node& component,
                          std::string_view name) {
  if (!component) {
    return FaultAtElement(text, state, "the stateVector has no <" + std::string(name) + ">: add it");
  }
  if (component.first_child() != component.last_child()) {
    return FaultAtElement(text, component,
                          "<" + std::string(name) + "> holds more than a plain text: write the value alone");
  }
  const std::string_view unit = component.attribute("units").as_string("km");
  if (unit != "km") {
    return FaultAtElement(text, component,
                          "the unit is " + QuotedForMessage(unit) + ": write positions in km");
  }
  return {};
}

ReadResult ReadStateVector(std::string_view text, const pugi::xml_node& state, StateTable& out) {
  constexpr std::string_view kNames[4] = {"EPOCH", "X", "Y", "Z"};
  pugi::xml_node components[4];
  for (int i = 0; i < 4; ++i) {
    components[i] = ChildNamed(state, kNames[i]);
    ReadResult result = CheckComponent(text, state, components[i], kNames[i]);
    if (!result.Ok()) return result;
  }
  const StateFields fields = {components[0].child_value(), components[1].child_value(),
                              components[2].child_value(), components[3].child_value()};
  const StateFault fault = AppendState(fields, EpochForm::epoch, out);
  return fault.what.empty() ? ReadResult{} : FaultAtElement(text, components[fault.field], fault.what);
}

ReadResult ReadSegment(std::string_view text, const pugi::xml_node& segment, StateTable& out) {
  ReadResult result = ReadMetadata(text, ChildNamed(segment, "metadata"), out);
  if (!result.Ok()) return result;
  for (const pugi::xml_node& child : ChildNamed(segment, "data").children()) {
    if (LocalName(child) != "stateVector") continue;
    result = ReadStateVector(text, child, out);
    if (!result.Ok()) return result;
  }
  return {};
}

ReadResult ReadMessage(std::string_view text, const pugi::xml_node& oem, StateTable& out) {
  for (const pugi::xml_node& segment : ChildNamed(oem, "body").children()) {
    if (LocalName(segment) != "segment") continue;
    ReadResult result = ReadSegment(text, segment, out);
    if (!result.Ok()) return result;
  }
  return {};
}

/// Reads the root when it is a message, else each message inside it.
ReadResult ReadRoot(std::string_view text, const pugi::xml_node& root, StateTable& out) {
  if (LocalName(root) == "oem") return ReadMessage(text, root, out);
  bool found = false;
  for (const pugi::xml_node& child : root.children()) {
    if (LocalName(child) != "oem") continue;
    found = true;
    ReadResult result = ReadMessage(text, child, out);
    if (!result.Ok()) return result;
  }
  if (found) return {};
  return FaultAtElement(
      text, root,
      "<" + std::string(root.name()) + "> holds no <oem>: only orbit ephemeris messages can be converted");
}

}  // namespace

bool OemXmlReader::Recognises(std::string_view head) const {
  return TrimSpace(head).substr(0, 1) == "<";
}

ReadResult OemXmlReader::Read(std::string_view text, StateTable& out) const {
  pugi::xml_document document;
  const pugi::xml_parse_result parsed =
      document.load_buffer(text.data(), text.size(), pugi::parse_default, pugi::encoding_utf8);
  if (!parsed) {
    return FaultAtLine(LineOfOffset(text, static_cast<std::size_t>(parsed.offset)),
                       "the XML is damaged (" + std::string(parsed.description()) +
                           "): correct it there or fetch the file again");
  }
  const pugi::xml_node root = document.document_element();
  StateTable table;
  ReadResult result = ReadRoot(text, root, table);
  if (!result.Ok()) return result;
  if (table.time.empty()) {
    return FaultAtElement(
        text, root, "the message holds no state: states stand as <stateVector> in <data> of a <segment>");
  }
  out = std::move(table);
  return {};
}

}  // namespace quorb
