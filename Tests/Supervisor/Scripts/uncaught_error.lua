-- An error that nobody catches ends the script, with the calls that led to it.
-- exit: 1
-- stderr: error:
-- stderr: {name}:8: broken on purpose
-- stderr: stack traceback:
-- stderr: {name}:10: in
local function helper()
  error("broken on purpose")
end
helper()
expect(false, "never reached")
