-- An error that nobody catches ends the script, with the calls that led to it.
-- exit: 1
-- stderr: error: {here}:7: broken on purpose
-- stderr: stack traceback:
-- stderr: {here}:9: in
local function helper()
  error("broken on purpose")
end
helper()
expect(false, "never reached")
