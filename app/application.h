#pragma once

// The process: initialises SDL video, creates the long-lived objects in their
// fixed order, runs the main loop and destroys them in their own fixed order.
struct Command_Line;

class Application {
public:
    // The program's main function. In the window: 0 normally, 1 when SDL
    // video cannot start. Help, version, usage errors (2) and the batch
    // conversions end before any window is made.
    static int main(int argc, char** argv);

    // Creates every long-lived object; fatal when "data" or a resource is missing.
    static void start_up();
    // The main loop; the files the command line names are opened over the first frame.
    static void run(const Command_Line* given = nullptr);
    static void shut_down();
};
