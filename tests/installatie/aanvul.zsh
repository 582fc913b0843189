# Types a line into a shell of its own and asks it to complete: all that the shell would offer goes into a
# file, a line each.
#
#   zsh -f aanvul.zsh FOLDER LINE NOTES      FOLDER holds the completion
zmodload zsh/zpty
ended=$3.ended
rm -f $ended
zpty shell "PS1= PS2= zsh -f -i"
# With -O, -D or -A words are only looked at.
zpty -w shell 'fpath=('${(q)1}' $fpath); autoload -U compinit; compinit -u -D
compadd() {
  local -a hits
  if [[ " $* " == *" -"[ODA]" "* ]]; then builtin compadd "$@"; return; fi
  builtin compadd -O hits "$@"
  print -rl -- $hits >>'${(q)3}'
  builtin compadd "$@"
}
end-note() { : >'${(q)ended}'; }
zle -N end-note
bindkey "^X" end-note
: >'${(q)3}

until [[ -e $3 ]] { sleep 0.05 }
zpty -w -n shell $2$'\t\x18'
until [[ -e $ended ]] { sleep 0.05 }
zpty -d shell
