# Fails unless PROGRAM has what the linker and compiler were asked for; READELF tells.
execute_process(COMMAND "${READELF}" --wide --file-header --program-headers --dynamic --dyn-syms
                        "${PROGRAM}"
                OUTPUT_VARIABLE told RESULT_VARIABLE failure)
if(failure)
  message(FATAL_ERROR "${PROGRAM} can't be read")
endif()

function(require what pattern)
  if(NOT told MATCHES "${pattern}")
    message(SEND_ERROR "${PROGRAM}: ${what} is missing")
  endif()
endfunction()

require("position-independent code" "Type: +DYN")
require("the mark of a position-independent program" "FLAGS_1[^\n]* PIE")
require("binding at the start" "FLAGS_1[^\n]* NOW")
require("what is read-only after binding" "GNU_RELRO")
require("a stack without code" "GNU_STACK[^\n]* RW ")
require("the stack protector" "__stack_chk_fail")
require("the checked library calls" "__[a-z]+_chk")
