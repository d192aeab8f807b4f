// What can be done to the device, one row a control; `call` is the name that scripts use.
//
// A row is a button that makes the call with `arguments`, which may hold the name of one of the row's `fields`
// as "$name". `toggle` makes a button that is either on or off; `show` one that brings that screen to the front. `tip` says
// what it does; `idle`, given what is known of the device and the fields' values, why it does nothing now.

const dark = ({ display }) => !display && "The display is off.";
const unheard = ({ sensor, matching }) => !sensor ? "This device has no fingerprint sensor."
  : !matching && "Nothing waits for a finger now.";
const held = way => ({ turned }) => turned === way && "It is held so already.";

export const actions = [
  {
    group: "On the screen",
    rows: [[{ show: "home", label: "Home screen", tip: "Show the home screen; Settings goes on behind it" },
      { show: "settings", label: "Settings", tip: "Show Settings at the extension's page" }]],
  },
  {
    group: "Buttons",
    rows: [
      [{ call: "home", label: "Home", tip: "One click of the home button" },
        { call: "home_twice", label: "Home twice", tip: "Two clicks: the switcher" }],
      [{ call: "lock", label: "Lock", tip: "The button at the edge: turns the display off, or on when it is dark" },
        { call: "unlock", label: "Unlock", tip: "Leave the lock screen, with the device's passcode if it has one",
          idle: state => dark(state) || (!state.locked && "The device is not locked.") }],
      [{ call: "display", label: "Display off", arguments: [false], tip: "Turn the display off, which locks the device",
        idle: state => !state.display && "It is off already." },
      { call: "display", label: "Display on", arguments: [true], tip: "Turn the display on: the lock screen",
        idle: state => state.display && "It is on already." }],
    ],
  },
  {
    group: "Fingerprint",
    rows: [[{ call: "finger", label: "Matches", arguments: [3], idle: unheard, tip: "A finger that the sensor knows" },
      { call: "finger", label: "Does not match", arguments: [10], idle: unheard,
        tip: "A finger that the sensor does not know" }]],
  },
  {
    group: "Badge",
    fields: [{ name: "app", kind: "application", label: "Application" },
      { name: "number", kind: "number", label: "Badge", value: 1, least: 0 }],
    rows: [[{ call: "badge", label: "Set", arguments: ["$app", "$number"], tip: "Give the application that badge" },
      { call: "badge", label: "Clear", arguments: ["$app", 0], tip: "Take its badge away",
        idle: ({ badges }, { app }) => !badges[app] && "It has no badge." },
      { call: "run", label: "Open", arguments: ["$app"], tip: "Bring the application to the front" }]],
  },
  {
    group: "Banner",
    fields: [{ name: "text", kind: "text", label: "Text of the banner", value: "Lunch at one?" }],
    rows: [[{ call: "banner", label: "Show a banner", arguments: ["$text"], tip: "A message comes, for 5 s" }]],
  },
  {
    group: "Hold it",
    rows: [
      [{ call: "rotate", label: "Upright", arguments: [1], idle: held(1), tip: "Hold the device upright" },
        { call: "rotate", label: "Left", arguments: [3], idle: held(3), tip: "Turn it to the left" },
        { call: "rotate", label: "Right", arguments: [4], idle: held(4), tip: "Turn it to the right" },
        { call: "rotate", label: "Upside down", arguments: [2], idle: held(2), tip: "Turn it upside down" }],
      [{ call: "reachability", label: "Reachability", toggle: "reached", tip: "Let the screen down, or up again",
        idle: state => !state.reachability ? "This device, or its system, has none." : dark(state) }],
    ],
  },
  {
    group: "System",
    rows: [
      [{ call: "activator", label: "Activator", tip: "The event that is assigned to the extension's listener" }],
      [{ call: "restyle", label: "Restyle status bar", tip: "The status bar lays its items out anew" },
        { call: "respring", label: "Respring", tip: "Start the home screen again" }],
    ],
  },
];
