// What can be done to the device, one row a control; `call` is the name that scripts use.
//
// A row is a button that makes the call with `arguments`, which may hold the name of one of the row's `fields`
// as "$name". `toggle` makes a button that is either on or off; `show` one that brings that screen to the front.

export const actions = [
  {
    group: "On the screen",
    rows: [[{ show: "home", label: "Home screen" }, { show: "settings", label: "Settings" }]],
  },
  {
    group: "Buttons",
    rows: [
      [{ call: "home", label: "Home" }, { call: "home_twice", label: "Home twice" }],
      [{ call: "lock", label: "Lock" }, { call: "unlock", label: "Unlock" }],
      [{ call: "display", label: "Display off", arguments: [false] },
        { call: "display", label: "Display on", arguments: [true] }],
    ],
  },
  {
    group: "Fingerprint",
    rows: [[{ call: "finger", label: "Matches", arguments: [3] },
      { call: "finger", label: "Does not match", arguments: [10] }]],
  },
  {
    group: "Badge",
    fields: [{ name: "app", kind: "application", label: "Application" },
      { name: "number", kind: "number", label: "Badge", value: 1, least: 0 }],
    rows: [[{ call: "badge", label: "Set", arguments: ["$app", "$number"] },
      { call: "badge", label: "Clear", arguments: ["$app", 0] }, { call: "run", label: "Open", arguments: ["$app"] }]],
  },
  {
    group: "Banner",
    fields: [{ name: "text", kind: "text", label: "Text of the banner", value: "Lunch at one?" }],
    rows: [[{ call: "banner", label: "Show a banner", arguments: ["$text"] }]],
  },
  {
    group: "Hold it",
    rows: [
      [{ call: "rotate", label: "Upright", arguments: [1] }, { call: "rotate", label: "Left", arguments: [3] },
        { call: "rotate", label: "Right", arguments: [4] }, { call: "rotate", label: "Upside down", arguments: [2] }],
      [{ call: "reachability", label: "Reachability", toggle: true }],
    ],
  },
  {
    group: "System",
    rows: [
      [{ call: "activator", label: "Activator" }],
      [{ call: "restyle", label: "Restyle status bar" }, { call: "respring", label: "Respring" }],
    ],
  },
];
