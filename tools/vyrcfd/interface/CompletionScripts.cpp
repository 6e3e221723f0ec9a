#include "CompletionScripts.h"

namespace Tool
{
const char BashCompletion[] = R"script(# Completion of vyrcfd for bash. The program itself knows what may follow.

_vyrcfd()
{
    local words=("${COMP_WORDS[@]:1:COMP_CWORD}") answer source suffix line
    local typed=${COMP_WORDS[COMP_CWORD]}
    # As the program would get them, but for rarities of quoting.
    words=("${words[@]//\\/}")
    words=("${words[@]#[\"\']}")
    words=("${words[@]%[\"\']}")
    words=("${words[@]/#\~\//$HOME/}")
    local current=${words[${#words[@]} - 1]}
    [ "$current" != "=" ] || current=
    COMPREPLY=()
    mapfile -t answer < <("${COMP_WORDS[0]/#\~\//$HOME/}" interface complete -- "${words[@]}" 2>/dev/null)
    read -r source suffix <<<"${answer[0]-}"
    case $source in
        folders)
            compopt -o filenames 2>/dev/null
            mapfile -t COMPREPLY < <(compgen -d -- "$current")
            ;;
        files)
            compopt -o filenames 2>/dev/null
            mapfile -t COMPREPLY < <(compgen -f -X "!*$suffix" -- "$current"; [ -z "$suffix" ] || compgen -d -- "$current")
            ;;
        *)
            for line in "${answer[@]:1}"; do
                line=${line%%$'\t'*}
                # What is to be escaped depends on the quotation mark inside of which the word is typed.
                case $typed in
                    \"*) line=$(sed 's/["\\$`]/\\&/g' <<<"$line") ;;
                    \'*) line=$(sed "s/'/'\\\\''/g" <<<"$line") ;;
                    *) line=$(printf '%q' "$line") ;;
                esac
                COMPREPLY+=("$line")
            done
            ;;
    esac
}

complete -F _vyrcfd vyrcfd
)script";

const char ZshCompletion[] = R"script(#compdef vyrcfd
# Completion of vyrcfd for zsh. The program itself knows what may follow.

_vyrcfd() {
    local -a answer texts shown
    local from suffix line
    answer=("${(@f)$("${(Q)words[1]}" interface complete -- "${(@Q)words[2,CURRENT]}" 2>/dev/null)}")
    from=${answer[1]%% *}
    suffix=${${answer[1]#$from}# }
    compset -P '--*='
    case $from in
        folders) _files -/ ;;
        files) _files ${suffix:+-g} ${suffix:+"*$suffix"} ;;
        *)
            for line in "${(@)answer[2,-1]}"; do
                texts+=("${line%%$'\t'*}")
                shown+=("${line/$'\t'/  -- }")
            done
            compadd -l -d shown -a texts
            ;;
    esac
}

if [ "${funcstack[1]}" = _vyrcfd ]; then
    _vyrcfd "$@"
else
    compdef _vyrcfd vyrcfd
fi
)script";

const char FishCompletion[] = R"script(# Completion of vyrcfd for fish. The program itself knows what may follow.

function __vyrcfd_complete
    set -l words (commandline -opc)
    set -l current (commandline -ct)
    set -l program $words[1]
    set -e words[1]
    set -l answer ($program interface complete -- $words "$current" 2>/dev/null)
    set -l source (string split -m 1 ' ' -- $answer[1])
    # What stands in front of the value in one word with it.
    set -l option (string match -r -- '^--[^=]*=' $current)
    set -l value (string replace -r -- '^--[^=]*=' '' $current)
    switch "$source[1]"
        case folders
            set answer (__fish_complete_directories "$value" '')
        case files
            set -l suffix (string escape --style=regex -- "$source[2]")
            set answer (__fish_complete_path "$value" | string match -r -- "^[^\t]*(?:/|$suffix)(?:\t.*)?\$")
        case '*'
            set -e answer[1]
    end
    for one in $answer
        echo -- "$option$one"
    end
end

complete -c vyrcfd -f -a '(__vyrcfd_complete)'
)script";
} // namespace Tool
