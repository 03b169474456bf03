// The seams to the machine, built in main and handed down by reference.
#pragma once

#include <string>

#include "runtime/code_page.h"

namespace tarn {

class ActLog;
class Clock;
class HttpLoader;
class Machine;
class MessageBoxes;
class Printer;
class Spooler;

struct Environment {
    HttpLoader& http;
    Spooler& spooler;  // raw jobs
    Printer& printer;  // drawn pages
    MessageBoxes& boxes;
    Clock& clock;
    Machine& machine;
    std::string baseUrl;  // ends in "?", the query follows at once
    CodePage codePage = CodePage::Page1252;
    std::string pictureFolder = {};  // of the pictures of bills and receipts; empty: none
    ActLog* acts = nullptr;          // null: nobody listens
};

}  // namespace tarn
