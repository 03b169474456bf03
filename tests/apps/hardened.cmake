# Fails unless PROGRAM, or a part of one (-DPART=ON), has what the linker and compiler were asked
# for; READELF tells.
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
if(NOT PART)
  require("the mark of a position-independent program" "FLAGS_1[^\n]* PIE")
endif()
require("binding at the start" "FLAGS_1[^\n]* NOW")
require("what is read-only after binding" "GNU_RELRO")
require("a stack without code" "GNU_STACK[^\n]* RW ")
require("the stack protector" "__stack_chk_fail")
if(NOT PART)  # a small one has no such calls
  require("the checked library calls" "__[a-z]+_chk")
endif()
