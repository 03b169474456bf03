// A virtual dot-matrix printer: raw jobs in, continuous paper out.
#include <cstdio>
#include <variant>

#include "apps/tarnimpressora/files.h"
#include "apps/tarnimpressora/options.h"
#include "apps/tarnimpressora/with_window.h"
#include "apps/tarnimpressora/without_window.h"
#include "cli/arguments.h"
#include "dotmatrix/dialect.h"
#include "dotmatrix/form_file.h"
#include "forms/document_forms.h"
#include "forms/form_catalogue.h"
#include "forms/form_loader.h"
#include "forms/layout_forms.h"

namespace {

using tarn::printer::complain;
using tarn::printer::Options;

// Of a note's form name, company, establishment, and "nota" where the note's items make the
// form's lines; of any other its name.
int listForms() {
    for (const tarn::dotmatrix::LadderForm& form : tarn::dotmatrix::ladderForms()) {
        std::printf("%s %d %d%s\n", form.name.c_str(), form.company, form.establishment,
                    form.linesOfNote ? " nota" : "");
    }
    for (const tarn::dotmatrix::NamedDocumentForm& form : tarn::dotmatrix::documentForms()) {
        std::printf("%s\n", form.name.c_str());
    }
    return 0;
}

int showForm(const Options& options) {
    const auto form = tarn::dotmatrix::formDrawing(options.writtenForm, options.itemLines);
    if (!form) {
        complain(QStringLiteral("não há formulário \"%1\". Veja os nomes com --formularios.")
                     .arg(QString::fromStdString(options.writtenForm)));
        return 1;
    }
    std::fputs(writeForm(*form).c_str(), stdout);
    return 0;
}

// Lays the form under the paper and sets the printer up for it, but for what the user
// chose.
bool useForm(Options& options, tarn::dotmatrix::PaintOptions& looks) {
    const auto loaded =
        tarn::dotmatrix::loadForm(QString::fromStdString(options.form), options.itemLines);
    if (const auto* wrong = std::get_if<QString>(&loaded)) {
        complain(*wrong);
        return false;
    }
    const auto& form = std::get<tarn::dotmatrix::LoadedForm>(loaded);
    lay(form, looks);
    const auto panel = panelFor(*form.design, options.dialect);
    if (!options.ownHeight) {
        options.dialect.formHeight = panel.formHeight;
    }
    if (!options.ownPitch) {
        options.dialect.elite = panel.elite;
        options.dialect.condensed = panel.condensed;
    }
    return true;
}

int run(int argc, char** argv) {
    const tarn::cli::Arguments arguments(argc, argv);
    auto read = tarn::printer::readCommandLine(arguments.count(), arguments.values());
    if (const auto* ending = std::get_if<tarn::cli::Ending>(&read)) {
        return tarn::cli::say(*ending);
    }
    auto& options = std::get<Options>(read);
    if (options.listForms) {
        return listForms();
    }
    if (!options.writtenForm.empty()) {
        return showForm(options);
    }
    const bool withWindow = !options.writes() && !options.noWindow;
    if (withWindow && !tarn::printer::hasDisplay()) {
        complain(
            QStringLiteral("não há tela para a janela; diga o que gravar: --pdf ARQUIVO, "
                           "--png ARQUIVO ou --texto ARQUIVO."));
        return 1;
    }
    tarn::dotmatrix::PaintOptions looks;
    looks.bands = options.bands;
    looks.title = QString::fromStdString(options.title);
    looks.ruler = options.ruler;
    if (!options.form.empty() && !useForm(options, looks)) {
        return 1;
    }
    looks.rulerCell = tarn::dotmatrix::PrintMode{.elite = options.dialect.elite,
                                                 .condensed = options.dialect.condensed}
                          .cellWidth();
    return withWindow ? runWithWindow(argc, argv, options, looks)
                      : runWithoutWindow(argc, argv, options, looks);
}

}  // namespace

int main(int argc, char** argv) {
    return run(argc, argv);
}
