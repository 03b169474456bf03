// What the blocks of one layout run share.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "common/raw_channel.h"
#include "notes/layout.h"
#include "notes/legal_texts.h"
#include "notes/losses.h"
#include "notes/note_document.h"

namespace tarn::notes {

// The item in hand as numbers.
struct ItemNumbers {
    double quantity = 0;
    double lineTotal = 0;
};

// Rows that are no products, set aside for their own block.
struct Services {
    std::vector<std::size_t> rows;  // positions
    double lastRate = 0;            // AQ_ISS of the last one
    double taxSum = 0;              // of VL_ISS
    double sum = 0;                 // of VL_LIQ_IT
};

struct Run {
    NoteDocument document;
    RawChannel* channel = nullptr;  // null where the note is drawn
    std::string noteNumber;         // under its mask
    Joined observation = Joined::Labelled;
    LossLog* losses = nullptr;  // null where nobody watches

    int parcel = 0;  // number of the parcel in hand
    ItemNumbers item{};
    double quantitySum = 0;
    double weightSum = 0;
    Services services{};
    LegalTexts legalTexts{};
    std::string legalText{};  // joined, once its first piece was asked for
    bool legalTextJoined = false;
    std::string classes{};

    std::string line{};   // the printed line in hand, reused
    std::string value{};  // the field in hand, reused

    // Item row in hand, from 1, for whoever watches; 0 outside the items.
    void watchItem(int number) const {
        if (losses != nullptr) {
            losses->item(number);
        }
    }

    // One call of the channel with what is in `line`, which is empty afterwards.
    void send(int lineEnds) {
        channel->ImprimeRaw(1, line, lineEnds);
        line.clear();
        if (losses != nullptr) {
            losses->lineEnds(lineEnds);
        }
    }
};

}  // namespace tarn::notes
