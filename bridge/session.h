#pragma once

class Programs;
class Values;
class XConnection;
struct Options;

/// What every action works with; all outlive the actions.
struct Session {
    XConnection &x;
    Values &values;
    Programs &programs;
    const Options &options;
};
