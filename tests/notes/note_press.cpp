#include "tests/notes/note_press.h"

#include <stdexcept>

#include "gateway/xml_document.h"
#include "notes/print_note.h"
#include "platform/environment.h"
#include "tests/support/fixed_machine.h"
#include "tests/support/recording_printer.h"
#include "tests/support/scripted_boxes.h"
#include "tests/support/scripted_loader.h"

namespace tarn::test {

int Printed::lineEnds() const {
    const std::string bytes = jobs.back().bytes();
    int count = 0;
    for (std::size_t at = bytes.find("\r\n"); at != std::string::npos;
         at = bytes.find("\r\n", at + 2)) {
        ++count;
    }
    return count;
}

Printed printXml(Ladder ladder, std::int32_t company, std::int32_t establishment,
                 const std::string& xml) {
    RecordingSpooler spooler;
    RecordingPrinter printer;
    ScriptedLoader http;
    ScriptedBoxes boxes;
    FixedClock clock;
    FixedMachine machine;
    Environment environment{http, spooler, printer, boxes, clock, machine, "", CodePage::Page1252};
    Sessao session;
    session.NCOMPANYCODE = company;
    session.ID_ETB_TARN = establishment;
    XmlDocument document;
    if (!document.loadXML(xml)) {
        throw std::runtime_error("the test's note isn't well-formed");
    }
    Printed printed;
    try {
        printNote(ladder, environment, session, document, plainNumber);
    } catch (const RuntimeError& error) {
        printed.error = error;
    }
    printed.jobs = std::move(spooler.jobs);
    printed.calls = std::move(spooler.calls);
    printed.documentLetGo = document.empty();
    return printed;
}

Printed print(const FormFacts& form, const NoteDraft& draft) {
    return printXml(form.ladder, form.company, form.establishment, draft.xml());
}

}  // namespace tarn::test
