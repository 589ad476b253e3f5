#pragma once

struct MainParts;

// The routes between the views that the main window is not an end of: the coordinator and
// its screens, panel, list, map and chart; the type filter's parts; the sessions. Each row is
// made only when the description builds and enables both of its ends.
class ViewWiring {
public:
    static void wire(const MainParts& parts);

private:
    static void wireList(const MainParts& parts);
    static void wireScreens(const MainParts& parts);
    static void wireControl(const MainParts& parts);
    static void wireTelemetry(const MainParts& parts);
};
