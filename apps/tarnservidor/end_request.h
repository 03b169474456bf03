// The system's word that the program is to end.
#pragma once

namespace tarn {

// To be made before any thread begins, and awaited by the one that made it. On Windows the word
// is Ctrl+C, the console's close button, or WM_CLOSE, by which one program asks another;
// elsewhere SIGINT or SIGTERM.
class EndRequest {
public:
    EndRequest();
    void wait();
};

}  // namespace tarn
