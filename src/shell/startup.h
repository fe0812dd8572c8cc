#ifndef KRM_SHELL_STARTUP_H
#define KRM_SHELL_STARTUP_H

// The instrument's start, from the application object to the event loop:
// the look (font, palette, pointer), configuration, catalogue, splash, the measuring
// board's supply and its four seconds, the data directories, the main menu.
// The device's main and the desktop variant both run exactly this.
int startInstrument(int& argc, char** argv);

#endif
