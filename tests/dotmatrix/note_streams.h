// The jobs of a note on each form, as a printer gets them.
#pragma once

#include <algorithm>
#include <cctype>
#include <string>
#include <vector>

#include "dotmatrix/dialect.h"
#include "forms/layout_forms.h"
#include "tests/notes/form_facts.h"
#include "tests/notes/note_press.h"
#include "tests/notes/plain_note.h"

namespace tarn::test {

// Set-up job (where the form has one) and note. `itemLines` is the form's QT_MAX_IT.
inline std::vector<std::string> streamsOf(const FormFacts& form, const NoteCase& note,
                                          int itemLines = plainItemLines) {
    NoteDraft draft = draftOf(note);
    draft.form["QT_MAX_IT"] = std::to_string(itemLines);
    std::vector<std::string> streams;
    for (const auto& job : print(form, draft).jobs) {
        streams.push_back(job.bytes());
    }
    return streams;
}

// "2421_3621" of the facts is "ImprimeNF_2421_3621", "2421_others" "ImprimeNF_2421".
inline std::string layoutNameOf(const FormFacts& form) {
    std::string name = form.name;
    if (const std::size_t others = name.find("_others"); others != std::string::npos) {
        name.erase(others);
    }
    name[0] = static_cast<char>(std::toupper(static_cast<unsigned char>(name[0])));
    return "ImprimeNF_" + name;
}

// Only the form that selects no pitch of its own is for a printer set to condensed.
inline dotmatrix::Dialect panelOf(const FormFacts& form) {
    dotmatrix::Dialect panel;
    panel.condensed = form.name == "1521";
    return panel;
}

}  // namespace tarn::test
