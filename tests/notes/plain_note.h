// The note that every form is tried with: 3 parcels and 2 products on a form of
// 6 item lines, a value of its own in every field. Beside each value as the
// server sends it stands what the forms print of it, written by hand.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace tarn::test {

using Attributes = std::map<std::string, std::string, std::less<>>;

// A note document while a test still changes it. UTF-8.
struct NoteDraft {
    Attributes head;
    Attributes totals;
    Attributes form;
    std::vector<Attributes> items;

    std::string xml() const;
};

// What a test varies. Items are by turns the plain note's first and second.
struct NoteCase {
    int parcels = 3;
    int items = 2;
    bool entry = false;
    std::string observation = "ENTREGAR DAS 8 ÀS 11 HORAS";
    std::vector<std::string> legalTexts{"ICMS DIFERIDO CONF. ART. 395",
                                        "ISENÇÃO DO IPI - DEC. 4.544"};
    std::string directOrder = "77123";
    std::string taxCredit = "1500";
    // Texts of 200 characters, each its field's name again and again, and long numbers
    // in the first item, so that every field is cut at its width.
    bool overflowing = false;
};

inline constexpr int plainItemLines = 6;
inline constexpr const char* plainNumber = "4321";

NoteDraft draftOf(const NoteCase& note);

// Printed texts, as bytes of the printer's page, before any cut to a width.
// Fields of the head and totals rows by the server's name; "product total",
// "quantity sum", "weight sum" and "words" (the total in words) are those of the
// plain note.
std::string printedField(std::string_view field, bool overflowing = false);
std::string printedParcel(std::string_view field, int parcel, bool overflowing = false);
// `way` is one of the ways in which forms differ over one field: "" the ordinary
// one, "general" and "raw" without a mask, "pointless" where the point of a
// quantity is taken for the one between thousands, "grouped" with that point,
// "whole" without decimals.
std::string printedItem(std::string_view field, std::string_view way, int item,
                        bool overflowing = false);
// The text of an overflowing field.
std::string overflowOf(std::string_view field);

// UTF-8 turned into bytes; only for characters that the page has.
std::string printerBytes(std::string_view utf8);
// For messages: bytes as UTF-8, control bytes as <0F>.
std::string readable(std::string_view bytes);

}  // namespace tarn::test
