#pragma once

// The process: initialises SDL video, creates the long-lived objects in their
// fixed order, runs the main loop and destroys them in their own fixed order.
class Application {
public:
    // The program's main function: 0 normally, 1 when SDL video cannot start.
    static int main();

    // Creates every long-lived object; fatal when "data" or a resource is missing.
    static void start_up();
    static void run();
    static void shut_down();
};
