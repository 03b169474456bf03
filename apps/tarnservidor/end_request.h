// The system's word that the program is to end.
#pragma once

namespace tarn {

// To be made before any thread begins. On Windows the word is Ctrl+C, or the console's close
// button; elsewhere SIGINT or SIGTERM.
class EndRequest {
public:
    EndRequest();
    void wait();
};

}  // namespace tarn
